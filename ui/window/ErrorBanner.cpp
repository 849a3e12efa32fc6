#include "ui/window/ErrorBanner.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/SelectableText.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Shadow.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QGraphicsOpacityEffect>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal widest = 560;
constexpr qreal radius = 12;
constexpr qreal verticalPadding = 13;
constexpr qreal leftPadding = 16;
constexpr qreal rightPadding = 12;
constexpr qreal iconSize = 18;
constexpr qreal gap = 10;
constexpr qreal crossSize = 22;
constexpr qreal offerGap = 6;
constexpr qreal shadowRoom = 44;  // on every side of the notice
constexpr int mostLines = 6;

// The banner's shadow: a widget of its own below it, so that clicks beside the notice reach what they are meant for.
class BannerShadow final : public QWidget {
public:
    explicit BannerShadow(QWidget* parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const int room = px(shadowRoom);
        DirectedPainter painter(this);
        paintShadow(painter, rect().adjusted(room, room, -room, -room), pxF(radius), Shadow::notice, Theme::of(this));
    }
};

}  // namespace

ErrorBanner::ErrorBanner(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_opacity(this, Duration::banner, QEasingCurve::Linear, [this] { showOpacity(); })
    , m_shadow(new BannerShadow(parent))
    , m_text(new SelectableText(this))
    , m_offer(new QBTextButton(QString(), this))
    , m_close(new QBIconButton(u"xmark"_s, Texts::tr("Dismiss"), this))
{
    hide();
    m_text->setAccessibleName(Texts::tr("Message"));
    m_close->setSizes({ crossSize, crossSize }, 14, 0, 6);
    m_close->setQuiet(true);
    connect(m_close, &QAbstractButton::clicked, &model, [&model] { model.setErrorMessage(std::nullopt); });
    m_offer->setLink(true);
    connect(m_offer, &QAbstractButton::clicked, &model, &AppModel::savePartially);
    connect(&model, &AppModel::errorMessageChanged, this, &ErrorBanner::follow);
    for (const auto signal :
        { &AppModel::selectionChanged, &AppModel::isSavingChanged, &AppModel::unsavedCountChanged })
        connect(&model, signal, this, &ErrorBanner::followOffer);
    follow();
}

// In one paragraph: only the name of a file could break it, which would read like two names.
QString ErrorBanner::message() const
{
    return m_model.errorMessage().value_or(QString()).replace(u'\n', u' ');
}

void ErrorBanner::follow()
{
    const bool wanted = m_model.errorMessage().has_value();
    setAccessibleName(message());
    // A text that is shown already keeps what is selected of it.
    if (m_text->toPlainText() != message())
        m_text->setPlainText(message());
    const bool appears = wanted && isHidden();
    m_shadow->setVisible(wanted);
    setVisible(wanted);
    if (appears)
        fadeIn();
    if (wanted) {
        m_shadow->raise();
        raise();
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    update();
    followOffer();
    emit sizeChanged();
}

void ErrorBanner::followOffer()
{
    const QString offer = m_model.partialSaveText();
    m_offer->setVisible(!offer.isEmpty());
    if (m_offer->text() == offer)
        return;
    m_offer->setText(offer);
    m_offer->setAccessibleName(offer);
    emit sizeChanged();
}

void ErrorBanner::fadeIn()
{
    setGraphicsEffect(new QGraphicsOpacityEffect(this));
    m_opacity.jumpTo(0);
    m_opacity.moveTo(1, [this] { setGraphicsEffect(nullptr); });
}

void ErrorBanner::showOpacity()
{
    if (auto* effect = static_cast<QGraphicsOpacityEffect*>(graphicsEffect()))
        effect->setOpacity(m_opacity.value());
}

void ErrorBanner::place(int bottom)
{
    if (isHidden() || !parentWidget())
        return;
    const int width = qMin(px(widest), parentWidget()->width() - 2 * px(20));
    const int left = px(leftPadding + iconSize + gap);
    const int crossLeft = width - px(rightPadding) - m_close->sizeHint().width();
    // The text's scroll bar stands in the gap before the cross.
    const int textWidth = crossLeft - left;
    const int textHeight = m_text->heightFor(textWidth, mostLines);
    const int room = qMax(textHeight, px(18));
    const int height = room + 2 * px(verticalPadding);
    const QRect text(left, px(verticalPadding) + (room - textHeight) / 2, textWidth, textHeight);
    const int offerRoom = m_offer->isHidden() ? 0 : m_offer->sizeHint().height() + px(offerGap);
    setGeometry((parentWidget()->width() - width) / 2, bottom - height - offerRoom, width, height + offerRoom);
    m_text->setGeometry(mirrored(text, this));
    m_offer->setGeometry(
        mirrored(QRect(QPoint(left, height - px(verticalPadding - offerGap)), m_offer->sizeHint()), this));
    const int around = px(shadowRoom);
    m_shadow->setGeometry(geometry().adjusted(-around, -around, around, around));
    m_close->setGeometry(mirrored(QRect(QPoint(crossLeft, px(verticalPadding) - px(2)), m_close->sizeHint()), this));
}

void ErrorBanner::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.line);
    painter.setBrush(theme.panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), pxF(radius), pxF(radius));
    const QRectF icon(px(leftPadding), px(verticalPadding), px(iconSize), px(iconSize));
    Icon::paint(painter, mirrored(icon, this), u"exclamationmark.triangle.fill"_s, pxF(iconSize), theme.amber);
}

}  // namespace Quorbel
