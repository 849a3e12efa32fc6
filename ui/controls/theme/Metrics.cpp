#include "ui/controls/theme/Metrics.h"

#include "ui/controls/theme/Motion.h"
#include "ui/controls/theme/Theme.h"
#include "ui/controls/theme/VerbatimFonts.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Desktops differ in what they call standard: 9 points (12 pixels) without settings, 10 in KDE, 11 in GNOME. All of
// these are 1; only sizes beyond them are the user's wish for larger or smaller text.
constexpr qreal smallestStandard = 12;
constexpr qreal largestStandard = 14.7;
constexpr qreal pointsPerInch = 72;
constexpr qreal standardDotsPerInch = 96;  // X11's, and Wayland's at a scale of 1

bool isMotionUnwanted = false;

qreal scaleOf(const QFont& font)
{
    // Not QFontInfo: it loads the desktop's font for this number alone, a tenth of the time to the first picture.
    const QScreen* screen = QGuiApplication::primaryScreen();
    const qreal dotsPerInch = screen ? screen->logicalDotsPerInchY() : standardDotsPerInch;
    const qreal pixels = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * dotsPerInch / pointsPerInch;
    if (pixels > largestStandard)
        return pixels / largestStandard;
    return pixels < smallestStandard && pixels > 0 ? pixels / smallestStandard : 1;
}

QString installedFamily(const QString& wanted, QFontDatabase::SystemFont fallback)
{
    return QFontDatabase::hasFamily(wanted) ? wanted : QFontDatabase::systemFont(fallback).family();
}

QFont makeFont(const QString& family, qreal points, QFont::Weight weight)
{
    QFont font(family);
    font.setPixelSize(px(points));
    font.setWeight(weight);
    return font;
}

// Runs a widget's restyle function at the events that call for it.
class Restyler final : public QObject {
public:
    Restyler(QWidget* widget, std::function<void()> restyle)
        : QObject(widget)
        , m_restyle(std::move(restyle))
        , m_seen(&Theme::of(widget))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        const Theme* theme = &Theme::of(static_cast<QWidget*>(watched));
        // A layout may polish a widget before it is put into its window: then only Show finds the window's theme.
        if (type == QEvent::Polish || type == QEvent::ApplicationFontChange || type == themeChangeEvent()
            || (type == QEvent::Show && theme != m_seen)) {
            m_seen = theme;
            m_restyle();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_restyle;
    const Theme* m_seen;  // only compared, never read
};

}  // namespace

qreal textScale()
{
    // Asked for at every stroke that is painted; the answer changes when the desktop's font does.
    static QFont font;
    static qreal scale = 0;
    const QFont current = QApplication::font();
    if (scale == 0 || !current.isCopyOf(font)) {
        font = current;
        scale = scaleOf(font);
    }
    return scale;
}

int px(qreal points)
{
    return int(std::lround(pxF(points)));
}

qreal pxF(qreal points)
{
    return points * textScale();
}

QSize leastWindow(QSize points)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize room = (screen ? screen->availableSize() : points).expandedTo(points);
    return QSize(px(points.width()), px(points.height())).boundedTo(room);
}

QFont sansFont(qreal points, QFont::Weight weight)
{
    static const QString family = installedFamily(u"Inter"_s, QFontDatabase::GeneralFont);
    return makeFont(family, points, weight);
}

QFont monoFont(qreal points)
{
    static const QString family = installedFamily(u"JetBrains Mono"_s, QFontDatabase::FixedFont);
    QFont font = makeFont(family, points, QFont::Normal);
    font.setStyleHint(QFont::Monospace);
    return font;
}

QFont verbatimFont(qreal points, QFont::Weight weight)
{
    return VerbatimFonts::verbatim(sansFont(points, weight));
}

QFont verbatimMonoFont(qreal points)
{
    return VerbatimFonts::verbatim(monoFont(points));
}

void reduceMotion(bool asked)
{
    isMotionUnwanted = asked;
}

bool motionEnabled(const QWidget* widget)
{
    if (isMotionUnwanted || qEnvironmentVariableIntValue("QUORBEL_REDUCE_MOTION") != 0)
        return false;
    return widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) > 0;
}

void onRestyle(QWidget* widget, std::function<void()> restyle)
{
    restyle();
    new Restyler(widget, std::move(restyle));
}

}  // namespace Quorbel
