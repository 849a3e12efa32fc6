#include "ui/window/ProgressFoot.h"

#include "app/model/AppModel.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/AnimatedValue.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int showDelay = 400;  // milliseconds
// Points.
constexpr qreal footHeight = 54;
constexpr qreal sidePadding = 12;
constexpr qreal barHeight = 4;

// Both with places for how many are done, and of how many.
QString readingText(const Progress& progress)
{
    if (progress.isSurvey)
        //: %1 of all %2 photos were looked at already.
        return Texts::tr("Looking at %1 of %2 photos…", nullptr, progress.total);
    if (progress.isFill)
        //: %1 of all %2 photos were filled in already: what the program did not know of them yet was read.
        return Texts::tr("Filling in %1 of %2 photos…", nullptr, progress.total);
    //: %1 of all %2 photos were read already.
    return Texts::tr("Reading %1 of %2 photos…", nullptr, progress.total);
}

QString writingText(bool isRenaming, int photos)
{
    if (isRenaming)
        //: %1 of all %2 photos were renamed already.
        return Texts::tr("Renaming %1 of %2 photos…", nullptr, photos);
    //: %1 of all %2 photos were saved already.
    return Texts::tr("Saving %1 of %2 photos…", nullptr, photos);
}

}  // namespace

// A thin determinate bar that moves evenly from one value to the next.
class ProgressBar final : public QWidget {
public:
    explicit ProgressBar(QWidget* parent)
        : QWidget(parent)
        , m_shown(this, Duration::progress)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    // 0…1. Backwards, as when other work begins, it jumps.
    void setFraction(qreal fraction)
    {
        if (fraction > m_shown.value())
            m_shown.moveTo(fraction);
        else
            m_shown.jumpTo(fraction);
    }

    QSize sizeHint() const override { return { px(100), px(barHeight) }; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const qreal radius = height() / 2.0;
        painter.setBrush(theme.derived.track);
        painter.drawRoundedRect(rect(), radius, radius);
        if (m_shown.value() <= 0)
            return;
        painter.setBrush(theme.accent);
        const QRectF done(0, 0, qMax(2 * radius, width() * m_shown.value()), height());
        painter.drawRoundedRect(mirrored(done, this), radius, radius);
    }

private:
    AnimatedValue m_shown;
};

ProgressFoot::ProgressFoot(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_text(new ThemedLabel({}, TextRole::text, 12))
    , m_skip(new QBTextButton(Texts::tr("Skip", "button: goes on without the file")))
    , m_cancel(new QBTextButton(Texts::tr("Cancel")))
    , m_bar(new ProgressBar(this))
{
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    m_text->setElided(true);
    m_text->setVerbatim(true);
    line->addWidget(m_text, 1);
    line->addWidget(m_skip);
    line->addWidget(m_cancel);
    column->addLayout(line);
    auto* barLine = new QHBoxLayout;
    barLine->addWidget(m_bar);
    column->addLayout(barLine);
    column->addStretch();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    onRestyle(this, [this, column, barLine] {
        // The button's own padding reaches to the bar's end.
        column->setContentsMargins(mirrored(QMargins(px(sidePadding), px(6), px(4), 0)));
        barLine->setContentsMargins(mirrored(QMargins(0, px(3), px(8), 0)));
    });

    hide();
    m_showDelay.setSingleShot(true);
    m_showDelay.setInterval(showDelay);
    connect(&m_showDelay, &QTimer::timeout, this, &ProgressFoot::showProgress);
    connect(m_skip, &QAbstractButton::clicked, &model, &AppModel::skipStalledFile);
    connect(m_cancel, &QAbstractButton::clicked, &model, [&model] {
        if (model.renaming().isRunning())
            model.renaming().cancel();
        else
            model.cancelRead();
    });
    connect(&model, &AppModel::progressChanged, this, &ProgressFoot::follow);
    connect(&model, &AppModel::isSavingChanged, this, &ProgressFoot::follow);
    connect(&model, &AppModel::stalledFileChanged, this, &ProgressFoot::follow);
    connect(&model, &AppModel::unreadSelectedChanged, this, &ProgressFoot::follow);
    follow();
}

QSize ProgressFoot::sizeHint() const
{
    return { px(200), px(footHeight) };
}

void ProgressFoot::setLined(bool lined)
{
    m_lined = lined;
    update();
}

void ProgressFoot::follow()
{
    if (m_model.progress()) {
        // A photo that is saved while others are read is done at once: the words do not change for it.
        const bool waits = isHidden() || (isWriting() && !m_showsWrite);
        if (waits && !m_showDelay.isActive())
            m_showDelay.start();
        if (waits)
            return;
        if (!isWriting())
            m_showDelay.stop();
        return showProgress();
    }
    m_showDelay.stop();
    m_showsWrite = false;
    m_bar->setFraction(0);
    if (!isHidden()) {
        hide();
        emit shownChanged(false);
    }
}

// A save that waits for records has not begun to write.
bool ProgressFoot::isWriting() const
{
    return m_model.isSaving() && !m_model.isAwaitingRecords();
}

QString ProgressFoot::shownText() const
{
    const Progress progress = m_model.progress().value_or(Progress());
    if (const auto stalled = m_model.stalledFile())
        //: %1 is the name of a file that takes suspiciously long to be read.
        return Texts::tr("Stuck at %1").arg(*stalled);
    if (progress.total == 0 && !isWriting())
        return Texts::tr("Looking for photos…");
    const QLocale locale;
    const QString pattern =
        isWriting() ? writingText(m_model.renaming().isRunning(), progress.total) : readingText(progress);
    return pattern.arg(locale.toString(progress.done), locale.toString(progress.total));
}

void ProgressFoot::showProgress()
{
    const auto progress = m_model.progress();
    if (!progress)
        return;
    m_showsWrite = isWriting();
    m_text->setText(shownText());
    m_skip->setVisible(m_model.stalledFile().has_value());
    m_bar->setFraction(progress->total > 0 ? static_cast<qreal>(progress->done) / progress->total : 0);
    m_cancel->setVisible(!isWriting() || m_model.renaming().isRunning());
    setAccessibleName(m_text->text());
    if (isHidden()) {
        show();
        emit shownChanged(true);
    }
}

void ProgressFoot::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.bg);
    if (m_lined)
        painter.fillRect(0, 0, width(), 1, theme.line);
}

}  // namespace Quorbel
