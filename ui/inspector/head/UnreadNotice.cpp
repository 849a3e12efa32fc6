#include "ui/inspector/head/UnreadNotice.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/NoticeLine.h"
#include "ui/controls/theme/Metrics.h"

#include <QAccessible>

namespace Quorbel {

namespace {
constexpr qreal above = 8;  // points
}  // namespace

UnreadNotice::UnreadNotice(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_line(new NoticeLine(Texts::tr("Try again"), this))
{
    m_line->setRoles(TextRole::amberText, TextRole::amberText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_line, &NoticeLine::changed, this, &UnreadNotice::fit);
    connect(tryAgain(), &QAbstractButton::clicked, &m_model, &AppModel::readDetailsAgain);
    onRestyle(this, [this] { fit(); });
    hide();
}

QBTextButton* UnreadNotice::tryAgain() const
{
    return m_line->button();
}

// The button stays while the photo is read again: the keyboard would else be somewhere else when that fails, too.
void UnreadNotice::refresh()
{
    const std::optional<QUrl> photo = m_model.primary();
    const std::optional<DetailsFailure> failure = m_model.detailsFailure();
    const bool isNews = failure && (failure != m_told || photo != m_photo);
    m_photo = photo;
    m_told = failure;
    setVisible(failure.has_value());
    if (!isNews)
        return;
    //: %1 is the reason: "took too long"
    const QString failed = Texts::tr("Some fields could not be read (%1)").arg(failure->reason);
    const QString text = failure->isTriedAgain ? Texts::tr("Reading metadata") : failed;
    m_line->setText(text, failure->isTriedAgain ? text : Texts::tr("Some fields could not be read"));
    setAccessibleName(text);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void UnreadNotice::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fit();
}

void UnreadNotice::fit()
{
    const int height = m_line->lines(width()) * NoticeLine::lineHeight();
    setFixedHeight(px(above) + height);
    m_line->setGeometry(0, px(above), width(), height);
}

}  // namespace Quorbel
