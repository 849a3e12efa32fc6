#include "ui/sheets/AddableFieldList.h"

#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
// Points.
constexpr qreal listHeight = 240;
constexpr qreal leastHeight = 86;
constexpr qreal rowHeight = 38;
constexpr qreal inset = 4;
constexpr qreal plusSize = 21;
constexpr qreal left = 10;
constexpr qreal right = 8;
constexpr qreal scrollRoom = 8;
}  // namespace

class AddableFieldRow final : public ThemedButton {
    Q_OBJECT

public:
    explicit AddableFieldRow(const FieldSpec& field)
        : ThemedButton(Texts::shown(field.label))
        , m_id(field.id)
        , m_note(Texts::shown(field.addNote))
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setAccessibleDescription(m_note);
        onRestyle(this, [this] {
            setFont(sansFont(13));
            updateGeometry();
        });
        installFocusRing(this, { RingShape::tight, 5, {}, {} });
    }

    const QString& id() const { return m_id; }
    QSize sizeHint() const override { return { px(200), px(rowHeight) }; }

signals:
    void moved(int step);

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
            emit moved(event->key() == Qt::Key_Up ? -1 : 1);
        else
            ThemedButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        const qreal on = hasFocus() ? 1 : fade()->hover();
        paintBox(painter, rect(), pxF(5), mixed(withAlpha(theme.derived.hover, 0), theme.derived.hover, on), Qt::NoPen);
        const QRectF plus(
            width() - pxF(right + plusSize), (height() - pxF(plusSize)) / 2, pxF(plusSize), pxF(plusSize));
        const QRectF name(pxF(left), 0, plus.left() - pxF(left) - pxF(10), height());
        const auto draw = [&](const QRectF& box, const QFont& font, const QColor& color, const QString& text) {
            painter.setFont(font);
            painter.setPen(color);
            painter.drawText(mirrored(box, this), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                QFontMetrics(font).elidedText(text, Qt::ElideRight, int(box.width())));
        };
        draw(name, sansFont(13), theme.text, text());
        const qreal used = QFontMetricsF(sansFont(13)).horizontalAdvance(text()) + pxF(10);
        draw(name.adjusted(used, 0, 0, 0), sansFont(12), theme.muted, m_note);
        const QRectF plusPlace = mirrored(plus, this);
        paintBox(painter, plusPlace, pxF(5), mixed(theme.btn, theme.accent, on),
            QPen(mixed(theme.btnLine, theme.accent, on), 1));
        Icon::paint(painter, plusPlace, u"plus"_s, pxF(12), mixed(theme.derived.label, theme.accentText, on), 2.1);
    }

private:
    QString m_id;
    QString m_note;
};

AddableFieldList::AddableFieldList(QWidget* parent)
    : ScrollArea(parent)
    , m_empty(new ThemedLabel({}, TextRole::muted, 13))
{
    setFramed(true);
    setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setSpacing(0);
    m_column->addWidget(m_empty, 1);
    m_column->addStretch();
    m_empty->setAlignment(Qt::AlignCenter);
    setContent(content);
    setAccessibleName(Texts::tr("Fields"));
    onRestyle(this, [this] {
        // In a low window, or with large type, the list gives way.
        setMinimumHeight(px(leastHeight));
        setMaximumHeight(px(listHeight));
        m_column->setContentsMargins(mirrored(QMargins(px(inset), px(inset), px(inset + scrollRoom), px(inset))));
    });
}

QSize AddableFieldList::sizeHint() const
{
    return { px(300), px(listHeight) };
}

AddableFieldRow* AddableFieldList::rowOf(const FieldSpec& field)
{
    if (AddableFieldRow* known = m_pool.value(field.id))
        return known;
    auto* row = new AddableFieldRow(field);
    m_pool.insert(field.id, row);
    connect(row, &QAbstractButton::clicked, this, [this, id = field.id] { emit picked(id); });
    connect(row, &AddableFieldRow::moved, this, [this, row](int step) { move(int(m_rows.indexOf(row)), step); });
    return row;
}

QWidget* AddableFieldList::headingOf(const FieldSpec& field)
{
    const bool isOfIptc = IptcSchema::isId(field.id);
    QWidget*& heading = m_headings[isOfIptc ? int(field.section) : -1];
    if (heading)
        return heading;
    heading = new QWidget;
    auto* line = new QVBoxLayout(heading);
    line->addWidget(new LabeledDivider(
        isOfIptc ? u"IPTC · "_s + Texts::shown(rawValue(field.section)) : Texts::tr("OTHER FIELDS"), true));
    onRestyle(heading, [line] { line->setContentsMargins(mirrored(QMargins(px(left), px(12), px(right), px(4)))); });
    return heading;
}

void AddableFieldList::setFields(const QList<FieldSpec>& fields, const QString& textWhenEmpty)
{
    for (AddableFieldRow* row : std::as_const(m_rows)) {
        m_column->removeWidget(row);
        row->hide();
    }
    m_rows.clear();
    for (QWidget* heading : std::as_const(m_headings)) {
        m_column->removeWidget(heading);
        heading->hide();
    }
    int at = 0;
    const QWidget* above = nullptr;
    for (const FieldSpec& field : fields) {
        const bool isOfIptc = IptcSchema::isId(field.id);
        if (QWidget* heading = isOfIptc || above ? headingOf(field) : nullptr; heading != above) {
            m_column->insertWidget(at++, heading);
            heading->show();
            above = heading;
        }
        AddableFieldRow* row = rowOf(field);
        m_column->insertWidget(at++, row);
        row->setFocusPolicy(m_rows.isEmpty() ? Qt::StrongFocus : Qt::ClickFocus);
        row->show();
        m_rows.append(row);
    }
    orderTabStops();
    m_empty->setText(textWhenEmpty);
    m_empty->setVisible(fields.isEmpty());
    ensureVisible(0, 0);
}

void AddableFieldList::setTabPredecessor(QWidget* widget)
{
    m_tabPredecessor = widget;
    orderTabStops();
}

// Rows are made late, but do not stand at the end.
void AddableFieldList::orderTabStops()
{
    QWidget* before = m_tabPredecessor;
    for (AddableFieldRow* row : std::as_const(m_rows)) {
        if (before)
            setTabOrder(before, row);
        before = row;
    }
}

QStringList AddableFieldList::shownIds() const
{
    QStringList ids;
    for (const AddableFieldRow* row : m_rows)
        ids.append(row->id());
    return ids;
}

void AddableFieldList::focusFirst()
{
    move(-1, 1);
}

void AddableFieldList::move(int from, int step)
{
    const int to = from + step;
    if (to < 0)
        emit leftUpwards();
    if (to < 0 || to >= int(m_rows.size()))
        return;
    // Tab comes back to the row that was left.
    for (AddableFieldRow* row : std::as_const(m_rows))
        row->setFocusPolicy(row == m_rows.at(to) ? Qt::StrongFocus : Qt::ClickFocus);
    m_rows.at(to)->setFocus(Qt::TabFocusReason);
    ensureWidgetVisible(m_rows.at(to), 0, px(inset));
}

}  // namespace Quorbel

#include "AddableFieldList.moc"
