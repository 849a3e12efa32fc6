#include "ui/sheets/sidecars/MoveTable.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal lineHeight = 30;
constexpr int mostLines = 8;
constexpr int leastLines = 3;

// For who does not see the columns.
QString spoken(const MovePreview::Row& row)
{
    QStringList texts;
    if (row.gains > 0)
        texts.append(Texts::tr("%n photo(s) (gains|gain) it", "a field", row.gains));
    if (row.changes > 0)
        texts.append(Texts::tr("%n photo(s) (changes|change) it", "a field", row.changes));
    if (row.loses > 0)
        texts.append(Texts::tr("%n photo(s) (loses|lose) it", "a field", row.loses));
    //: %1 is the name of a field, %2 what is said of it.
    return Texts::tr("%1: %2").arg(Texts::shown(row.label), texts.join(u", "_s));
}

}  // namespace

class MoveLine final : public QWidget {
public:
    MoveLine(int columns, bool isFirst)
        : m_name(new ThemedLabel({}, TextRole::text, 13))
        , m_isFirst(isFirst)
    {
        auto* line = new QHBoxLayout(this);
        m_name->setElided(true);
        line->addWidget(m_name, 1);
        for (int i = 0; i < columns; ++i) {
            auto* number = new ThemedLabel({}, TextRole::text, 12);
            number->setMono(true);
            number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            line->addWidget(number);
            m_numbers.append(number);
        }
        line->setSpacing(0);
        onRestyle(this, [this, line] {
            setFixedHeight(px(lineHeight));
            line->setContentsMargins(px(MoveTable::side), 0, px(MoveTable::side), 0);
            for (ThemedLabel* number : std::as_const(m_numbers))
                number->setFixedWidth(px(MoveTable::columnWidth));
        });
    }

    void setRow(const MovePreview::Row& row)
    {
        m_name->setText(Texts::shown(row.label));
        m_name->setRole(TextRole::text);
        const int numbers[] = { row.gains, row.changes, row.loses };
        for (qsizetype i = 0; i < m_numbers.size(); ++i)
            setTextOrNothing(*m_numbers.at(i), numbers[i] > 0 ? QLocale::c().toString(numbers[i]) : QString());
        setAccessibleName(spoken(row));
    }

    void setNote(const QString& text)
    {
        m_name->setText(text);
        m_name->setRole(TextRole::muted);
        for (ThemedLabel* number : std::as_const(m_numbers))
            setTextOrNothing(*number, {});
        setAccessibleName(text);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!m_isFirst)
            QPainter(this).fillRect(0, 0, width(), 1, Theme::of(this).line);
    }

private:
    ThemedLabel* m_name;
    QList<ThemedLabel*> m_numbers;
    bool m_isFirst;
};

MoveTable::MoveTable(const QStringList& columns, QWidget* parent)
    : ScrollArea(parent)
    , m_columns(int(columns.size()))
{
    setFramed(true);
    setFocusPolicy(Qt::StrongFocus);
    describeAs(staticMetaObject, QAccessible::Grouping);
    setAccessibleName(Texts::tr("What is written"));
    installFocusRing(this, { RingShape::tight, 7, {}, {} });
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addStretch();
    setContent(content);
    onRestyle(this, [this] { fit(); });
}

void MoveTable::setRows(const QList<MovePreview::Row>& rows, const QString& note)
{
    auto* column = static_cast<QVBoxLayout*>(widget()->layout());
    m_shown = int(qMax<qsizetype>(rows.size(), 1));
    while (m_lines.size() < m_shown) {
        m_lines.append(new MoveLine(m_columns, m_lines.isEmpty()));
        column->insertWidget(column->count() - 1, m_lines.constLast());
    }
    for (int i = 0; i < int(m_lines.size()); ++i) {
        if (i < rows.size())
            m_lines.at(i)->setRow(rows.at(i));
        else if (i == 0)
            m_lines.at(i)->setNote(note);
        m_lines.at(i)->setVisible(i < m_shown);
    }
    fit();
}

void MoveTable::fit()
{
    const int line = px(lineHeight);
    setMinimumHeight(leastLines * line + 2);
    setMaximumHeight(qBound(leastLines, m_shown, mostLines) * line + 2);
    updateGeometry();
}

QSize MoveTable::sizeHint() const
{
    return { px(300), maximumHeight() };
}

}  // namespace Quorbel
