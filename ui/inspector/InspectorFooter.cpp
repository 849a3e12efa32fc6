#include "ui/inspector/InspectorFooter.h"

#include "app/model/AppModel.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/NoticeLine.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/InspectorStates.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QResizeEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal barHeight = 54;
constexpr qreal side = 20;
constexpr qreal gap = 8;
constexpr qreal dotSize = 6;
constexpr qreal narrowBelow = 430;
constexpr qreal narrowHeight = 78;
constexpr qreal narrowTop = 8;
constexpr qreal leastText = 104;
constexpr qreal buttonPadding = 28;

// What the buttons need beside a line that still says something, in the user's language.
int leastRow(const QStringList& titles)
{
    const QFontMetricsF letters(sansFont(13, QFont::DemiBold));
    qreal width = pxF(2 * side + leastText);
    for (const QString& title : titles)
        width += letters.horizontalAdvance(title) + pxF(buttonPadding + gap);
    return int(width);
}

bool isNarrow(int width)
{
    const int one = leastRow({ Texts::tr("Rename…"), Texts::tr("Add field"), Texts::tr("Save") });
    return width < qMax(px(narrowBelow), one);
}

void setTitle(QBButton* button, const QString& title)
{
    if (button->text() == title)
        return;
    button->setText(title);
    button->updateGeometry();
}

}  // namespace

InspectorFooter::InspectorFooter(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_line(new QBoxLayout(QBoxLayout::LeftToRight, this))
    , m_unsaved(new TwoLineLabel(TextRole::label, 12))
    //: Button: shows edits again that were left unsaved.
    , m_left(new NoticeLine(Texts::tr("Bring back")))
    , m_rename(new QBButton(Texts::tr("Rename…"), QBButtonKind::secondary))
    , m_add(new QBButton(Texts::tr("Add field"), QBButtonKind::dashed))
    , m_save(new QBButton(Texts::tr("Save"), QBButtonKind::primary))
{
    auto* buttons = new QHBoxLayout;
    m_unsaved->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_line->addWidget(m_unsaved, 1);
    m_line->addWidget(m_left, 1);
    m_line->addLayout(buttons);
    for (QBButton* button : { m_rename, m_add, m_save })
        buttons->addWidget(button);
    connect(m_left->button(), &QAbstractButton::clicked, this, &InspectorFooter::bringBack);
    connect(m_rename, &QAbstractButton::clicked, this, [this] { m_model.setRenameOpen(true); });
    connect(m_add, &QAbstractButton::clicked, this, [this] { m_model.setAddOpen(true); });
    connect(m_save, &QAbstractButton::clicked, this, [this] { m_model.requestSave(); });
    onRestyle(this, [this, buttons] {
        buttons->setSpacing(px(gap));
        m_line->setSpacing(px(gap));
        arrange();
    });
}

int InspectorFooter::heightFor(int width)
{
    return px(isNarrow(width) ? narrowHeight : barHeight);
}

void InspectorFooter::arrange()
{
    const bool narrow = isNarrow(width());
    m_line->setDirection(narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_line->setContentsMargins(px(side), narrow ? px(narrowTop) : 1, px(side), narrow ? px(narrowTop) : 0);
    setFixedHeight(heightFor(width()));
    update();
}

void InspectorFooter::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        arrange();
}

QList<QWidget*> InspectorFooter::tabStops() const
{
    return { m_left->button(), m_rename, m_add, m_save };
}

void InspectorFooter::refresh(bool hasPhoto)
{
    const bool dirty = hasPhoto && m_model.unsavedCount() > 0;
    // What is unsaved here comes first.
    const auto& left = m_model.leftNotice();
    const bool isLeftShown = hasPhoto && left && !dirty;
    m_left->setVisible(isLeftShown);
    if (isLeftShown)
        m_left->setText(InspectorStates::leftText(*left), InspectorStates::briefLeftText(*left));
    m_unsaved->setVisible(hasPhoto && !isLeftShown);
    m_unsaved->setText(InspectorStates::unsavedText(m_model));
    m_unsaved->setRole(dirty ? TextRole::text : TextRole::label);
    m_unsaved->setContentsMargins(mirrored(QMargins(dirty ? px(dotSize + gap) : 0, 0, 0, 0)));
    const bool isUnread = InspectorStates::isUnread(m_model);
    m_rename->setVisible(hasPhoto && (m_model.canRename() || (isUnread && !m_model.isBatch())));
    m_rename->setEnabled(!isUnread);
    m_add->setVisible(hasPhoto);
    m_add->setEnabled(!isUnread);
    setTitle(m_add, InspectorStates::addTitle(m_model));
    m_save->setVisible(hasPhoto);
    setTitle(m_save, m_model.renaming().isRunning() ? Texts::tr("Renaming…") : InspectorStates::saveTitle(m_model));
    // A save that runs is not asked for again.
    m_save->setEnabled(dirty && !m_model.isSaving());
    // The line chooses its words by its width, which was another one beside the buttons of before.
    m_line->activate();
    update();
}

void InspectorFooter::bringBack()
{
    const bool hadFocus = m_left->button()->hasFocus();
    m_model.bringBack(0);
    // The button is gone now: what one does next is to save.
    if (hadFocus && m_save->isEnabled())
        m_save->setFocus(Qt::OtherFocusReason);
}

void InspectorFooter::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.panel);
    painter.fillRect(0, 0, width(), 1, theme.line);
    if (!m_unsaved->isVisible() || m_unsaved->contentsMargins().isNull())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.amber);
    const qreal dot = pxF(dotSize);
    const qreal top = isNarrow(width()) ? m_unsaved->geometry().center().y() - dot / 2 : (height() + 1 - dot) / 2;
    painter.drawEllipse(mirrored(QRectF(pxF(side), top, dot, dot), this));
}

}  // namespace Quorbel
