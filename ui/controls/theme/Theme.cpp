#include "ui/controls/theme/Theme.h"

#include <QApplication>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <memory>

using ThemePointer = std::shared_ptr<const Quorbel::Theme>;
Q_DECLARE_METATYPE(ThemePointer)

namespace Quorbel {

namespace {

constexpr const char* themeProperty = "quorbelTheme";

// One role in both palettes.
struct RoleRow {
    QColor Theme::*role;
    const char* light;
    const char* dark;
};

// One derived colour in both palettes; opacities of 1 but where stated.
struct DerivedRow {
    QColor DerivedColors::*role;
    const char* light;
    const char* dark;
    qreal lightAlpha = 1;
    qreal darkAlpha = 1;
};

constexpr RoleRow roleRows[] = {
    { &Theme::bg, "ffffff", "1f1f22" },
    { &Theme::panel, "f6f5f2", "27272a" },
    { &Theme::titlebar, "efedea", "2c2c2f" },
    { &Theme::text, "1d1d1f", "ededed" },
    { &Theme::muted, "86847f", "908e8a" },
    { &Theme::line, "e6e3dd", "3a3a3e" },
    { &Theme::hair, "f0ede7", "303034" },
    { &Theme::field, "ffffff", "2c2c30" },
    { &Theme::fieldLine, "d9d6d0", "48484d" },
    { &Theme::sel, "1d1d1f", "e8e7e3" },
    { &Theme::selText, "ffffff", "1d1d1f" },
    { &Theme::selSub, "b6b4af", "6f6e6b" },
    { &Theme::accent, "1d1d1f", "e8e7e3" },
    { &Theme::accentText, "ffffff", "1d1d1f" },
    { &Theme::btn, "ffffff", "34343a" },
    { &Theme::btnLine, "cdcbc4", "48484d" },
    { &Theme::amber, "9a7a1c", "d8b85a" },
    { &Theme::amberBg, "fbf2d4", "39331f" },
    { &Theme::amberLine, "e7d28d", "6b5a2a" },
    { &Theme::scroll, "c9c7c1", "48484d" },
    { &Theme::focus, "9a9a9f", "7a7a80" },
    { &Theme::chip, "f3f2ee", "34343a" },
    { &Theme::previewBg, "eceae5", "161618" },
};

constexpr DerivedRow derivedRows[] = {
    { &DerivedColors::label, "4b4a4a", "c2c1be" },
    { &DerivedColors::hover, "000000", "ffffff", .05, .06 },
    { &DerivedColors::pressed, "000000", "ffffff", .10, .11 },
    { &DerivedColors::rowHover, "f3f2ee", "2a2a2e" },
    { &DerivedColors::primaryHover, "3a3a3d", "ffffff" },
    { &DerivedColors::primaryPressed, "000000", "cfcec9" },
    { &DerivedColors::primaryOff, "dedbd5", "3a3a3e" },
    { &DerivedColors::primaryOffText, "97948e", "7c7a78" },
    { &DerivedColors::secondaryHover, "f8f7f5", "3d3d44" },
    { &DerivedColors::secondaryHoverLine, "b5b2aa", "5d5d64" },
    { &DerivedColors::secondaryPressed, "eeece8", "2e2e33" },
    { &DerivedColors::dashedLine, "b5b2aa", "5d5d64" },
    { &DerivedColors::destructive, "a8321f", "ee8f7f" },
    { &DerivedColors::destructiveHover, "a8321f", "ee8f7f", .07, .10 },
    { &DerivedColors::destructivePressed, "a8321f", "ee8f7f", .14, .18 },
    { &DerivedColors::fieldHoverLine, "bfbcb5", "5d5d64" },
    { &DerivedColors::fieldOff, "f6f5f2", "27272a" },
    { &DerivedColors::amberText, "7d6314", "d8b85a" },
    { &DerivedColors::chipLine, "e6e3dd", "424248" },
    { &DerivedColors::chipHover, "e9e7e2", "3f3f46" },
    { &DerivedColors::track, "e2dfd9", "3a3a3e" },
    { &DerivedColors::scrollHover, "aeaca6", "5d5d64" },
    { &DerivedColors::switchKnob, "ffffff", "c2c1be" },
    { &DerivedColors::ring, "9a9a9f", "7a7a80", .34, .42 },
    { &DerivedColors::ringAmber, "9a7a1c", "d8b85a", .24, .26 },
    { &DerivedColors::focusStrong, "6e6e73", "a4a4aa" },
    { &DerivedColors::thumbEdge, "000000", "ffffff", .14, .12 },
    { &DerivedColors::dim, "000000", "000000", .24, .45 },
};

Theme makeTheme(bool dark)
{
    Theme theme;
    theme.isDark = dark;
    for (const RoleRow& row : roleRows)
        theme.*row.role = colorFromHex(QString::fromLatin1(dark ? row.dark : row.light));
    theme.shadow = withAlpha(Qt::black, dark ? .44 : .17);
    for (const DerivedRow& row : derivedRows) {
        const QColor color = colorFromHex(QString::fromLatin1(dark ? row.dark : row.light));
        theme.derived.*row.role = withAlpha(color, dark ? row.darkAlpha : row.lightAlpha);
    }
    return theme;
}

// Sends an event to everything inside a widget, but to no window of its own.
void tellInside(QWidget* root, QEvent::Type type)
{
    // One may delete another.
    const QList<QWidget*> found = root->findChildren<QWidget*>();
    const QList<QPointer<QWidget>> widgets(found.cbegin(), found.cend());
    for (const QPointer<QWidget>& widget : widgets) {
        if (!widget || widget->isWindow())
            continue;
        QEvent event(type);
        QApplication::sendEvent(widget, &event);
        if (widget)
            widget->update();
    }
}

// Tells what is inside a window of a new font of the desktop: Qt tells windows alone, and of a change of the desktop's
// theme, which may have brought it, nobody as a font's.
class FontWatch final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* window = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::ThemeChange) {
            QEvent change(QEvent::ApplicationFontChange);
            QApplication::sendEvent(window, &change);
        } else if (event->type() == QEvent::ApplicationFontChange) {
            tellInside(window, event->type());
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

const Theme& Theme::light()
{
    static const Theme theme = makeTheme(false);
    return theme;
}

const Theme& Theme::dark()
{
    static const Theme theme = makeTheme(true);
    return theme;
}

const Theme& Theme::of(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        const QVariant value = w->property(themeProperty);
        // The widget keeps the pointer alive; the reference outlives this copy.
        if (value.isValid())
            return *value.value<ThemePointer>();
    }
    return light();
}

QColor colorFromHex(const QString& hex)
{
    return QColor::fromRgb(QRgb(0xff000000U | hex.toUInt(nullptr, 16)));
}

void setTheme(QWidget* root, const Theme& theme)
{
    const QVariant old = root->property(themeProperty);
    if (old.isValid() && *old.value<ThemePointer>() == theme)
        return;
    if (!old.isValid() && root->isWindow())
        root->installEventFilter(new FontWatch(root));
    root->setProperty(themeProperty, QVariant::fromValue(ThemePointer(std::make_shared<const Theme>(theme))));
    root->setPalette(paletteFor(theme));
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* widget : std::as_const(widgets)) {
        QEvent event(themeChangeEvent());
        QApplication::sendEvent(widget, &event);
        widget->update();
    }
}

QEvent::Type themeChangeEvent()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

QPalette paletteFor(const Theme& theme)
{
    QPalette p;
    const auto set = [&p](QPalette::ColorRole role, const QColor& color) { p.setColor(role, color); };
    set(QPalette::Window, theme.panel);
    set(QPalette::WindowText, theme.text);
    set(QPalette::Base, theme.field);
    set(QPalette::AlternateBase, theme.derived.rowHover);
    set(QPalette::Text, theme.text);
    set(QPalette::PlaceholderText, theme.muted);
    set(QPalette::Button, theme.btn);
    set(QPalette::ButtonText, theme.text);
    set(QPalette::Light, theme.btn);
    set(QPalette::Midlight, theme.hair);
    set(QPalette::Mid, theme.line);
    set(QPalette::Dark, theme.btnLine);
    set(QPalette::Shadow, theme.shadow);
    set(QPalette::BrightText, theme.selText);
    // Selected text keeps its own colour on a translucent ground, so that it reads in edited fields too.
    set(QPalette::Highlight, mixed(theme.field, theme.focus, .42));
    set(QPalette::HighlightedText, theme.text);
    set(QPalette::ToolTipBase, theme.sel);
    set(QPalette::ToolTipText, theme.selText);
    set(QPalette::Link, theme.derived.label);
    set(QPalette::LinkVisited, theme.derived.label);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        p.setColor(QPalette::Disabled, role, theme.muted);
    p.setColor(QPalette::Disabled, QPalette::Base, theme.derived.fieldOff);
    return p;
}

QColor mixed(const QColor& a, const QColor& b, qreal t)
{
    const auto lerp = [t](float x, float y) { return float(x + (y - x) * t); };
    // A fully transparent end has no hue of its own: it takes the other's, so that a fade does not pass through black.
    const QColor from = a.alpha() == 0 ? withAlpha(b, 0) : a;
    const QColor to = b.alpha() == 0 ? withAlpha(a, 0) : b;
    return QColor::fromRgbF(lerp(from.redF(), to.redF()), lerp(from.greenF(), to.greenF()),
        lerp(from.blueF(), to.blueF()), lerp(from.alphaF(), to.alphaF()));
}

QColor withAlpha(QColor color, qreal alpha)
{
    color.setAlphaF(float(alpha));
    return color;
}

}  // namespace Quorbel
