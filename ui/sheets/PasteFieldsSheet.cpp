#include "ui/sheets/PasteFieldsSheet.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/words/FieldPasting.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/PasteFieldRow.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal pasteWidth = 560;
constexpr qreal thumbnail = 42;
constexpr qreal headerBelow = 12;
constexpr qreal buttonsAbove = 22;
constexpr int mostRows = 10;  // beyond them the list scrolls
constexpr int leastRows = 3;  // in a low window

constexpr qsizetype mostOfName = 48;  // characters of a file's name in the title

QString copiedText(const QDateTime& at, const QDate& today)
{
    if (!at.isValid())
        return {};
    const QString time = QLocale::c().toString(at.time(), u"HH:mm"_s);
    if (at.date() == today)
        //: %1 is a time of day.
        return Texts::tr("Copied today, %1").arg(time);
    if (at.date() == today.addDays(-1))
        //: %1 is a time of day.
        return Texts::tr("Copied yesterday, %1").arg(time);
    //: The form of a day with its month in words: d is the day's number, MMMM the month's name, yyyy the year.
    const QString day = QLocale().toString(at.date(), Texts::tr("d MMMM yyyy", "form of a date"));
    //: %1 is a day, %2 a time of day.
    return Texts::tr("Copied %1, %2").arg(day, time);
}

QString shortened(const QString& name)
{
    return name.size() <= mostOfName ? name : name.left(mostOfName / 2) + u'…' + name.right(mostOfName / 2);
}

// As high as its rows, and lower where there is no room.
class RowList final : public ScrollArea {
public:
    RowList()
    {
        setFramed(true);
        setFocusPolicy(Qt::NoFocus);
        setAccessibleName(Texts::tr("Fields"));
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        setContent(content);
    }

    void fit(int rows)
    {
        m_rows = rows;
        const int row = PasteFieldRow::fixedHeight();
        setMinimumHeight(qMin(rows, leastRows) * row + 2);
        setMaximumHeight(qMin(rows, mostRows) * row + 2);
        updateGeometry();
    }

    QSize sizeHint() const override { return { px(300), maximumHeight() }; }
    int rows() const { return m_rows; }

private:
    int m_rows = 0;
};

}  // namespace

PasteFieldsSheet::PasteFieldsSheet(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : SheetBody(parent)
    , m_model(model)
    , m_list(new RowList)
    , m_note(new WrappedLine(TextRole::label, 11, 15))
    , m_dismiss(new QBButton(Texts::tr("Cancel")))
    , m_paste(new QBButton({}, QBButtonKind::primary))
{
    auto* column = new QVBoxLayout(this);
    QHBoxLayout* header = buildHeader(thumbs);
    QHBoxLayout* foot = buildFoot();
    column->setSpacing(0);
    column->addLayout(header);
    column->addWidget(m_list);
    column->addLayout(foot);
    buildRows();
    orderTabStops();
    frameSheet(this, column, pasteWidth);
    onRestyle(this, [this, header, foot] {
        header->setContentsMargins(0, px(-6), 0, px(headerBelow));
        foot->setContentsMargins(0, px(buttonsAbove), 0, 0);
        static_cast<RowList*>(m_list)->fit(int(m_rows.size()));
    });
    connect(&m_model.pasting(), &FieldPasting::changed, this, &PasteFieldsSheet::refresh);
    connect(&m_model, &AppModel::selectionChanged, this, &PasteFieldsSheet::refresh);
    refresh();
}

QHBoxLayout* PasteFieldsSheet::buildHeader(ThumbnailStore* thumbs)
{
    const CopiedFields& fields = m_model.pasting().fields();
    const QUrl photo = fields.photo.isEmpty() ? QUrl() : QUrl::fromLocalFile(fields.photo);
    auto* line = new QHBoxLayout;
    auto* picture = new ThumbnailView(thumbs, thumbnail, 7);
    picture->setUrl(m_model.pairing().seenFile(photo));
    auto* texts = new QVBoxLayout;
    //: %1 is the name of the file whose fields were copied.
    const QString origin = photo.isEmpty() ? Texts::tr("Copied fields") : Texts::tr("From %1").arg(photo.fileName());
    auto* name = new ThemedLabel(origin, TextRole::text, 13, QFont::Medium);
    auto* when = new ThemedLabel(copiedText(fields.copiedAt, m_model.now().date()), TextRole::label, 11);
    name->setElided(true);
    name->setVerbatim(true);
    texts->addStretch();
    texts->addWidget(name);
    texts->addWidget(when);
    texts->addStretch();
    when->setVisible(!when->text().isEmpty());
    line->addWidget(picture);
    line->addLayout(texts, 1);
    for (const bool on : { true, false }) {
        auto* button = new QBTextButton(
            on ? Texts::tr("All", "button: ticks all fields") : Texts::tr("None", "button: ticks no field"));
        button->setAccessibleDescription(on ? Texts::tr("Tick all fields") : Texts::tr("Tick no field"));
        connect(button, &QAbstractButton::clicked, &m_model.pasting(), [this, on] { m_model.pasting().tickAll(on); });
        line->addWidget(button);
        m_before.append(button);
    }
    onRestyle(this, [line, texts, picture, photo] {
        line->setSpacing(px(10));
        texts->setSpacing(0);
        picture->setVisible(!photo.isEmpty());
    });
    return line;
}

QHBoxLayout* PasteFieldsSheet::buildFoot()
{
    auto* line = new QHBoxLayout;
    connect(m_dismiss, &QAbstractButton::clicked, this, &PasteFieldsSheet::cancel);
    connect(m_paste, &QAbstractButton::clicked, this, &PasteFieldsSheet::confirm);
    line->addWidget(m_note, 1);
    line->addWidget(m_dismiss);
    line->addWidget(m_paste);
    onRestyle(this, [line] { line->setSpacing(px(8)); });
    return line;
}

void PasteFieldsSheet::buildRows()
{
    FieldPasting& pasting = m_model.pasting();
    const qsizetype count = pasting.rows().size();
    for (int i = 0; i < int(count); ++i) {
        auto* row = new PasteFieldRow(i == 0);
        m_list->widget()->layout()->addWidget(row);
        row->tick()->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        m_rows.append(row);
        connect(row, &PasteFieldRow::toggled, this, [this, i] {
            if (const auto rows = m_model.pasting().rows(); i < rows.size())
                m_model.pasting().setTicked(rows.at(i).key, !rows.at(i).isTicked);
        });
        connect(row, &PasteFieldRow::moved, this, [this, i](int step) { move(i, step); });
        connect(row, &PasteFieldRow::confirmed, this, &PasteFieldsSheet::confirm);
    }
}

// As one reads; widgets were not made in that order.
void PasteFieldsSheet::orderTabStops()
{
    QList<QWidget*> stops = m_before;
    for (const PasteFieldRow* row : std::as_const(m_rows))
        stops.append(row->tick());
    stops += { m_dismiss, m_paste };
    for (qsizetype i = 1; i < stops.size(); ++i)
        setTabOrder(stops.at(i - 1), stops.at(i));
}

void PasteFieldsSheet::refresh()
{
    const FieldPasting& pasting = m_model.pasting();
    const QList<FieldPasting::Row> rows = pasting.rows();
    for (qsizetype i = 0; i < qMin(rows.size(), m_rows.size()); ++i)
        m_rows.at(i)->setRow(rows.at(i));
    const int ticked = pasting.tickedCount();
    m_paste->setText(ticked == 0 ? Texts::tr("Paste Fields") : Texts::tr("Paste %n Field(s)", nullptr, ticked));
    m_paste->setEnabled(ticked > 0);
    QString note = m_model.isBatch() ? Texts::tr("Nothing is written before Apply.")
                                     : Texts::tr("Nothing is written before Save.");
    if (const int unread = pasting.unreadPhotos(); unread > 0)
        note += u' ' + Texts::tr("%n photo(s) (was|were) not read yet.", nullptr, unread);
    m_note->setText(note);
    if (parentWidget())
        parentWidget()->update();  // the title
}

// Tab comes back to the row that was left.
void PasteFieldsSheet::move(int from, int step)
{
    const int to = from + step;
    if (to < 0 || to >= int(m_rows.size()))
        return;
    for (PasteFieldRow* row : std::as_const(m_rows))
        row->tick()->setFocusPolicy(row == m_rows.at(to) ? Qt::StrongFocus : Qt::ClickFocus);
    m_rows.at(to)->tick()->setFocus(Qt::TabFocusReason);
    m_list->ensureWidgetVisible(m_rows.at(to), 0, 0);
}

QString PasteFieldsSheet::title() const
{
    if (m_model.isBatch())
        return Texts::tr("Paste Fields to %n Photo(s)", nullptr, m_model.selection().size());
    //: %1 is the name of a file.
    return Texts::tr("Paste Fields to %1")
        .arg(m_model.primary() ? shortened(m_model.primary()->fileName()) : QString());
}

void PasteFieldsSheet::confirm()
{
    m_model.pasting().paste();
}

void PasteFieldsSheet::cancel()
{
    m_model.pasting().close();
}

QWidget* PasteFieldsSheet::initialFocus()
{
    return m_rows.isEmpty() ? nullptr : m_rows.constFirst()->tick();
}

}  // namespace Quorbel
