#include "ui/controls/keywords/KeywordChip.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal textSize = 12;
constexpr qreal cellHeight = 28;
constexpr qreal capsuleHeight = 22;
constexpr qreal leftPadding = 9;
constexpr qreal crossSide = 16;
constexpr qreal crossGap = 3;
constexpr qreal leastPath = 36;  // less of a path says nothing
constexpr qreal arrowSize = 9;
constexpr qreal arrowGap = 4;

// Towards what stands below.
QString arrow()
{
    return QGuiApplication::isRightToLeft() ? u"◂"_s : u"▸"_s;
}

// Of texts with an arrow behind each.
struct PathMetrics {
    QFontMetrics text;
    int arrow = 0;
    int widthOf(const QStringList& elements) const
    {
        int width = int(elements.size()) * arrow;
        for (const QString& element : elements)
            width += text.horizontalAdvance(element);
        return width;
    }
};

// What of them goes into this room: the middle gives way first, the keyword's own parent last.
QStringList elidedElements(QStringList elements, const PathMetrics& metrics, int room)
{
    QStringList shown = elements;
    while (elements.size() > 1 && metrics.widthOf(shown) > room) {
        const qsizetype middle = (elements.size() - 1) / 2;
        elements.removeAt(middle);
        shown = elements;
        shown.insert(middle, u"…"_s);
    }
    const int excess = metrics.widthOf(shown) - room;
    if (excess > 0) {
        const int left = metrics.text.horizontalAdvance(shown.last()) - excess;
        shown.last() = metrics.text.elidedText(shown.last(), Qt::ElideMiddle, qMax(0, left));
    }
    return shown;
}

}  // namespace

QString shownKeywordPath(const QStringList& elements)
{
    const bool isMixed =
        std::any_of(elements.cbegin(), elements.cend(), [](const QString& element) { return element.isRightToLeft(); });
    // Marks of direction keep words of a script that runs to the left from changing places round an arrow.
    const QString mark = isMixed ? QString(QChar(0x200e)) : QString();
    return mark + elements.join(mark + u" ▸ "_s + mark);
}

QString spokenKeyword(const QString& keyword, const QList<QStringList>& parents)
{
    QStringList places;
    for (const QStringList& path : parents)
        //: Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.
        places.append(Texts::tr("in %1").arg(path.join(u", "_s)));
    return places.isEmpty() ? keyword : keyword + u", "_s + places.join(u"; "_s);
}

KeywordChip::KeywordChip(QWidget* parent)
    : QWidget(parent)
    , m_cross(new QBIconButton(u"xmark"_s, QString(), this))
{
    describeAs(staticMetaObject, QAccessible::ListItem);
    ToolTips::setRestQuiet(this);
    setFocusPolicy(Qt::ClickFocus);
    m_cross->setSizes({ crossSide, crossSide }, 9, 2.6, 8);
    m_cross->setQuiet(true);
    m_cross->setFocusPolicy(Qt::NoFocus);
    connect(m_cross, &QAbstractButton::clicked, this, &KeywordChip::crossed);
    onRestyle(this, [this] {
        setFont(verbatimFont(textSize));
        m_keywordFont = verbatimFont(textSize, QFont::Medium);
        m_arrowFont = sansFont(arrowSize);
        m_arrowWidth = 2 * px(arrowGap) + QFontMetrics(m_arrowFont).horizontalAdvance(arrow());
        measure();
    });
}

void KeywordChip::setKeyword(const QString& keyword, const QList<QStringList>& parents, bool amber)
{
    m_amber = amber;
    m_cross->setAmber(amber);
    if (keyword != m_keyword || parents != m_parents) {
        m_keyword = keyword;
        m_parents = parents;
        setAccessibleName(spokenKeyword(keyword, parents));
        //: %1: what is taken out of a list or form, as a keyword or a field.
        m_cross->setName(Texts::tr("Remove %1").arg(keyword));
        measure();
        showToolTip();
    }
    update();
}

void KeywordChip::setParentsShown(bool shown)
{
    if (shown == m_parentsShown)
        return;
    m_parentsShown = shown;
    updateGeometry();
    update();
}

void KeywordChip::setMostWidth(int most)
{
    if (most == m_most)
        return;
    m_most = most;
    setMaximumWidth(most);
    if (!m_parents.isEmpty())
        measure();
}

// Once for each text, font and line: a layout asks again and again.
void KeywordChip::measure()
{
    const int around = px(leftPadding) + px(crossGap) + px(crossSide) + px(3) + 4;
    m_width = around + fontMetrics().horizontalAdvance(m_keyword);
    m_widthWithParents = m_width;
    m_shown.clear();
    if (!m_parents.isEmpty()) {
        const PathMetrics metrics{ fontMetrics(), m_arrowWidth };
        const int own = around + QFontMetrics(m_keywordFont).horizontalAdvance(m_keyword);
        const int room = m_most - own;
        if (room >= qMin(metrics.widthOf(m_parents.first()), px(leastPath)))
            m_shown = elidedElements(m_parents.first(), metrics, room);
        m_widthWithParents = own + metrics.widthOf(m_shown);
    }
    updateGeometry();
}

int KeywordChip::widthWithParents() const
{
    return m_widthWithParents;
}

QSize KeywordChip::sizeHint() const
{
    return { areParentsShown() ? m_widthWithParents : m_width, px(cellHeight) };
}

QRect KeywordChip::crossPlace() const
{
    const int side = px(crossSide);
    return { width() - side - px(3) - 2, (height() - side) / 2, side, side };
}

void KeywordChip::resizeEvent(QResizeEvent*)
{
    m_cross->setGeometry(mirrored(crossPlace(), this));
    showToolTip();
}

void KeywordChip::showToolTip()
{
    QStringList lines;
    if (!m_parents.isEmpty() || width() < m_width)
        lines.append(m_keyword);
    for (const QStringList& path : std::as_const(m_parents))
        lines.append(shownKeywordPath(path + QStringList(m_keyword)));
    setToolTip(lines.join(u'\n'));
}

void KeywordChip::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : HighContrast::disabledOpacity(theme));
    const QRectF capsule = QRectF(1, (height() - pxF(capsuleHeight)) / 2, width() - 2, pxF(capsuleHeight));
    const QColor line = m_amber ? theme.amberLine : theme.derived.chipLine;
    const qreal radius = pxF(capsuleHeight / 2);
    paintBox(painter, capsule, radius, m_amber ? theme.amberBg : theme.chip,
        QPen(line, m_amber ? HighContrast::markedLine(theme) : 1));
    if (hasFocus())
        paintBox(painter, capsule, radius, Qt::transparent, QPen(theme.derived.focusStrong, 2));
    QRect text(px(leftPadding) + 2, 0, crossPlace().x() - px(leftPadding) - 2 - px(2), height());
    if (areParentsShown()) {
        painter.setFont(m_keywordFont);
        text.setLeft(text.left() + paintParents(painter, text));
    }
    painter.setPen(theme.text);
    painter.drawText(mirrored(text, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_keyword, Qt::ElideRight, text.width()));
}

// Each in the direction of its own script, in the order in which one reads. The width that they take.
int KeywordChip::paintParents(QPainter& painter, const QRect& text) const
{
    const Theme& theme = Theme::of(this);
    int x = text.left();
    const auto draw = [&](const QString& part, const QFont& font, int width, qreal lift = 0) {
        painter.setFont(font);
        painter.drawText(mirrored(QRectF(x, -lift, width, height()), this), Qt::AlignCenter | Qt::TextSingleLine, part);
        x += width;
    };
    painter.save();
    painter.setPen(m_amber ? theme.derived.amberText : theme.derived.label);
    for (const QString& part : m_shown) {
        draw(part, font(), fontMetrics().horizontalAdvance(part));
        draw(arrow(), m_arrowFont, m_arrowWidth, .5);
    }
    painter.restore();
    return x - text.left();
}

void KeywordChip::focusInEvent(QFocusEvent*)
{
    update();
}

void KeywordChip::focusOutEvent(QFocusEvent*)
{
    update();
}

}  // namespace Quorbel
