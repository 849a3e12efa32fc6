#include "ui/controls/pickers/CodePopover.h"

#include "core/language/Texts.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal tallRow = 44;
constexpr qreal flatRow = 28;
constexpr qreal textLeft = 32;
constexpr qreal textRight = 10;
constexpr qreal markLeft = 9;
constexpr qreal markSize = 14;
constexpr qreal nameTop = 5;
constexpr qreal nameHeight = 18;
constexpr qreal noteHeight = 16;
constexpr qreal footHeight = 33;
constexpr qreal footGap = 4;  // between the list and the line
constexpr qreal footSide = 16;
constexpr qreal leastWidth = 280;

constexpr int noteRole = Qt::UserRole;
constexpr int typedRole = Qt::UserRole + 1;
constexpr int heldRole = Qt::UserRole + 2;

// Where the words that were typed stand in the text.
QList<QTextLayout::FormatRange> foundRanges(const QString& text, const QString& typed)
{
    QTextCharFormat bold;
    bold.setFont(verbatimFont(13, QFont::DemiBold));
    QList<QTextLayout::FormatRange> ranges;
    for (const QString& word : typed.split(u' ', Qt::SkipEmptyParts))
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            ranges.append({ int(at), int(word.size()), bold });
    return ranges;
}

class CodeDelegate final : public QStyledItemDelegate {
public:
    CodeDelegate(int mostRows, const bool& isTall, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_mostRows(mostRows)
        , m_isTall(isTall)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return { 0, px(m_isTall ? tallRow : flatRow) };
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const QRectF row = OverlayScrollBar::rowBeside(option, index, m_mostRows);
        if (option.state.testFlag(QStyle::State_Selected))
            paintBox(*painter, row, pxF(6), theme.derived.hover, HighContrast::groundEdge(theme));
        const QString note = index.data(noteRole).toString();
        const auto placed = [&](const QRectF& place) { return mirrored(place, row, option.direction); };
        const QRectF text = placed(row.adjusted(px(textLeft), 0, -px(textRight), 0));
        QRectF name = text;
        if (!note.isEmpty())
            name = QRectF(text.left(), text.top() + px(nameTop), text.width(), px(nameHeight));
        if (index.data(heldRole).toBool())
            Icon::paint(*painter, placed(QRectF(row.left() + pxF(markLeft), name.top(), pxF(markSize), name.height())),
                u"checkmark"_s, pxF(markSize), theme.text, 2.1);
        paintName(*painter, name, index, theme);
        painter->setFont(verbatimFont(11));
        painter->setPen(theme.derived.label);
        painter->drawText(QRectF(name.left(), name.bottom(), name.width(), px(noteHeight)),
            Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter->fontMetrics().elidedText(note, Qt::ElideRight, int(name.width())));
    }

private:
    static void paintName(QPainter& painter, const QRectF& room, const QModelIndex& index, const Theme& theme)
    {
        const QString typed = index.data(typedRole).toString();
        // Measured as if all of it were bold, so that it never is too wide.
        const QFontMetricsF metrics(verbatimFont(13, typed.isEmpty() ? QFont::Normal : QFont::DemiBold));
        const QString shown = metrics.elidedText(index.data().toString(), Qt::ElideRight, room.width());
        QTextLayout layout(shown, verbatimFont(13));
        layout.setFormats(foundRanges(shown, typed));
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(2 * room.width());
        layout.endLayout();
        painter.setPen(theme.text);
        layout.draw(&painter, { room.left(), room.top() + (room.height() - line.height()) / 2 });
    }

    int m_mostRows;
    const bool& m_isTall;  // the popover's, which outlives its list
};

}  // namespace

CodePopover::CodePopover(const QString& name, CodeSource source, const QStringList& held, bool clears, QWidget* opener)
    : SearchPopover(name, Texts::tr("Search"), opener)
    , m_source(std::move(source))
    , m_held(held)
    , m_clears(clears)
{
    list()->setItemDelegate(new CodeDelegate(mostRows, m_hasNotes, list()));
    setNothingFound(Texts::tr("Nothing found"));
    for (const QString& code : held)
        if (!code.isEmpty() && m_source.known(code).isEmpty())
            m_unknown.append({ code, code, Texts::tr("Not among the known codes") });
    field()->setCodes(m_source.codes);
    findAgain();
    m_all = m_found;
    m_rowsAtFirst = list()->count();
}

void CodePopover::openAt(const QWidget& picker)
{
    open(QRect(picker.mapToGlobal(QPoint()), picker.size()), qMax(picker.width(), px(leastWidth)));
}

QList<CodeRow> CodePopover::rowsFor(const QString& typed)
{
    QList<CodeRow> rows;
    if (m_clears && typed.isEmpty())
        rows.append({ {}, Texts::tr("None", "no value"), {} });
    for (const CodeRow& row : std::as_const(m_unknown))
        if (row.code.contains(typed, Qt::CaseInsensitive))
            rows.append(row);
    const QList<CodeRow> found = m_source.rows ? m_source.rows(typed) : QList<CodeRow>();
    m_found = found.size();
    rows += found;
    const auto isTyped = [&typed](const CodeRow& row) {
        return row.code == typed || row.name.compare(typed, Qt::CaseInsensitive) == 0;
    };
    if (m_source.takesAnyText && !typed.isEmpty() && std::none_of(rows.cbegin(), rows.cend(), isTyped))
        //: %1: what was typed.
        rows.append({ typed, Texts::tr("Use “%1”").arg(typed), Texts::tr("As it is typed, not one of the codes") });
    return rows;
}

int CodePopover::find(const QString& typed)
{
    m_rows = rowsFor(typed);
    if (typed.isEmpty())
        m_hasNotes =
            std::any_of(m_rows.cbegin(), m_rows.cend(), [](const CodeRow& row) { return !row.note.isEmpty(); });
    for (const CodeRow& row : std::as_const(m_rows))
        add(row, typed);
    if (isVisible())
        place(true);
    if (!typed.isEmpty())
        return 0;
    const auto isHeld = [this](const CodeRow& row) { return m_held.contains(row.code); };
    const auto held = std::find_if(m_rows.cbegin(), m_rows.cend(), isHeld);
    return held == m_rows.cend() ? 0 : int(held - m_rows.cbegin());
}

void CodePopover::add(const CodeRow& row, const QString& typed)
{
    auto* item = new QListWidgetItem(row.name, list());
    // No code is what is held while nothing is.
    const bool isHeld = row.code.isEmpty() ? m_held.isEmpty() : m_held.contains(row.code);
    item->setData(noteRole, row.note);
    item->setData(typedRole, typed);
    item->setData(heldRole, isHeld);
    QStringList told{ row.name };
    if (!row.note.isEmpty())
        told.append(row.note);
    if (isHeld)
        //: Spoken of a row in a list.
        told.append(Texts::tr("chosen"));
    item->setData(Qt::AccessibleTextRole, told.join(u", "_s));
}

int CodePopover::rowHeight() const
{
    return px(m_hasNotes ? tallRow : flatRow);
}

int CodePopover::heightIn(int)
{
    const int rows = isBelow() ? list()->count() : m_rowsAtFirst;
    return heightWith(qBound(1, rows, mostRows) * rowHeight());
}

int CodePopover::roomBelow() const
{
    return px(footHeight);
}

void CodePopover::pick(int row)
{
    const QString code = m_rows.at(row).code;
    close();
    emit picked(code);
}

void CodePopover::paintEvent(QPaintEvent* event)
{
    SearchPopover::paintEvent(event);
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    const QRect box = this->box();
    const QRect foot(box.left(), list()->geometry().bottom() + 1 + px(footGap), box.width(), 0);
    painter.fillRect(QRect(foot.left() + 1, foot.top(), foot.width() - 2, 1), theme.line);
    QStringList told{ Texts::tr("%1 of %2").arg(m_found).arg(m_all) };
    if (!m_source.footer.isEmpty())
        told.append(m_source.footer);
    painter.setFont(sansFont(11));
    painter.setPen(theme.derived.label);
    const QRect room(
        box.left() + px(footSide), foot.top() + 1, box.width() - 2 * px(footSide), box.bottom() - foot.top());
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(told.join(u" · "_s), Qt::ElideRight, room.width()));
}

}  // namespace Quorbel
