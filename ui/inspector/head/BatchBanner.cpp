#include "ui/inspector/head/BatchBanner.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/NoticeLine.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/TextLines.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/head/PhotoHeader.h"

#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 14;
constexpr qreal corner = 9;
constexpr qreal side = 18;
constexpr qreal iconSide = 24;
constexpr qreal titleHeight = 21;
constexpr qreal lineHeight = 17;
constexpr qreal leastText = 200;
constexpr int mostLines = 2;  // under the title

QString bannerHint()
{
    return Texts::tr("Tick a field to write it to all selected files.");
}

}  // namespace

BatchBanner::BatchBanner(QWidget* parent)
    : QWidget(parent)
    //: Button: writes what is shown to all places within photos that hold a field.
    , m_disagreements(new NoticeLine(Texts::tr("Make them agree"), this))
    , m_end(new QWidget(this))
{
    m_disagreements->setRoles(TextRole::selSub, TextRole::selText);
    m_disagreements->hide();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_disagreements, &NoticeLine::changed, this, &BatchBanner::place);
    onRestyle(this, [this] {
        updateGeometry();
        place();
    });
}

void BatchBanner::setPhotos(qsizetype count, const QString& note, const QString& after)
{
    const QString title = Texts::tr("Editing %n photos", nullptr, count);
    const QString second = note.isEmpty() ? bannerHint() : note;
    if (title == m_title && second == m_note && after == m_after)
        return;
    m_title = title;
    m_note = second;
    m_after = after;
    setAccessibleName(title);
    setAccessibleDescription(after.isEmpty() ? second : second + u' ' + after);
    update();
}

void BatchBanner::setDisagreements(const QString& text, bool canAgree)
{
    m_disagreements->setText(text, text);
    m_disagreements->setVisible(!text.isEmpty());
    agree()->setEnabled(canAgree);
    place();
}

QBTextButton* BatchBanner::agree() const
{
    return m_disagreements->button();
}

QSize BatchBanner::sizeHint() const
{
    return { px(200), px(PhotoHeader::heightInPoints) };
}

void BatchBanner::setAtEnd(QWidget* widget)
{
    m_atEnd = widget;
    widget->setParent(m_end);
    widget->installEventFilter(this);
    place();
}

bool BatchBanner::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_atEnd && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent))
        place();
    return QWidget::eventFilter(watched, event);
}

QRect BatchBanner::textArea() const
{
    const int left = px(side) + px(iconSide) + px(gap);
    const int right = isEndShown() ? m_end->width() + px(gap) : 0;
    return { left, 0, width() - left - px(side) - right, height() };
}

// What is told of the photos comes before what one does here.
QStringList BatchBanner::noteLines() const
{
    const int width = textArea().width();
    const auto broken = [width](const QString& text, int most) {
        return brokenIntoLines(text, sansFont(12), width, LineBreaks::words, most);
    };
    const QStringList lines = broken(m_after.isEmpty() ? m_note : m_note + u' ' + m_after, mostLines + 1);
    const int most = m_disagreements->isHidden() ? mostLines : mostLines - m_disagreements->lines(width);
    if (lines.size() <= most)
        return lines;
    const QStringList brief = broken(m_after.isEmpty() ? m_note : m_after, mostLines);
    return brief.size() <= most ? brief : QStringList();
}

void BatchBanner::place()
{
    if (m_atEnd) {
        m_atEnd->resize(m_atEnd->sizeHint());
        m_end->resize(m_atEnd->size());
        const QPoint at(width() - px(side) - m_end->width(), (height() - m_end->height()) / 2);
        m_end->setGeometry(mirrored(QRect(at, m_end->size()), this));
        m_end->setVisible(at.x() - px(side) - px(iconSide) - 2 * px(gap) >= px(leastText));
    }
    const QRect area = textArea();
    const int above = int(noteLines().size());
    const int own = m_disagreements->isHidden() ? 0 : m_disagreements->lines(area.width());
    const qreal top = (height() - pxF(titleHeight + lineHeight * (above + own))) / 2;
    const QRect notice(
        area.left(), qRound(top + pxF(titleHeight + lineHeight * above)), area.width(), own * NoticeLine::lineHeight());
    m_disagreements->setGeometry(mirrored(notice, this));
    update();
}

void BatchBanner::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void BatchBanner::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(corner), theme.sel, Qt::NoPen);
    const qreal icon = pxF(iconSide);
    const QRectF iconBox(pxF(side), (height() - icon) / 2, icon, icon);
    painter.setOpacity(.85);
    Icon::paint(painter, mirrored(iconBox, this), u"square.stack.3d.up"_s, icon, theme.selText);
    painter.setPen(theme.selText);
    painter.setOpacity(1);
    painter.setFont(sansFont(15, QFont::DemiBold));
    const QRect area = textArea();
    const QStringList lines = noteLines();
    const int own = m_disagreements->isHidden() ? 0 : m_disagreements->lines(area.width());
    const qreal top = (height() - pxF(titleHeight + lineHeight * int(lines.size() + own))) / 2;
    const auto line = [&](qreal y, qreal height, const QString& text) {
        painter.drawText(mirrored(QRectF(area.left(), y, area.width(), height), this),
            Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
    };
    line(top, pxF(titleHeight - 1), m_title);
    painter.setOpacity(.7);
    painter.setFont(sansFont(12));
    for (qsizetype i = 0; i < lines.size(); ++i)
        line(top + pxF(titleHeight + lineHeight * int(i)), pxF(lineHeight), lines.at(i));
}

}  // namespace Quorbel
