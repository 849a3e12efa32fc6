#include "ui/controls/theme/Theme.h"

#include "ui/controls/theme/HighContrast.h"

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

// The columns of the tables below. With high contrast all is read as black on white or white on black; colours only
// underline what shapes and borders say.
enum Column { lightColumn, darkColumn, strongLightColumn, strongDarkColumn, columnCount };

// One role in all palettes.
struct RoleRow {
    QColor Theme::*role;
    const char* hex[columnCount];
};

// One derived colour in all palettes; opacities of 1 but where stated.
struct DerivedRow {
    QColor DerivedColors::*role;
    const char* hex[columnCount];
    qreal alpha[columnCount] = { 1, 1, 1, 1 };
};

constexpr RoleRow roleRows[] = {
    { &Theme::bg, { "ffffff", "1f1f22", "ffffff", "000000" } },
    { &Theme::panel, { "f6f5f2", "27272a", "ffffff", "000000" } },
    { &Theme::titlebar, { "efedea", "2c2c2f", "ffffff", "000000" } },
    { &Theme::text, { "1d1d1f", "ededed", "000000", "ffffff" } },
    { &Theme::muted, { "86847f", "908e8a", "3d3d3d", "d2d2d2" } },
    { &Theme::line, { "e6e3dd", "3a3a3e", "000000", "ffffff" } },
    { &Theme::hair, { "f0ede7", "303034", "c8c8c8", "4a4a4a" } },
    { &Theme::field, { "ffffff", "2c2c30", "ffffff", "000000" } },
    { &Theme::fieldLine, { "d9d6d0", "48484d", "000000", "ffffff" } },
    { &Theme::sel, { "1d1d1f", "e8e7e3", "000000", "ffffff" } },
    { &Theme::selText, { "ffffff", "1d1d1f", "ffffff", "000000" } },
    { &Theme::selSub, { "b6b4af", "6f6e6b", "e4e4e4", "262626" } },
    { &Theme::accent, { "1d1d1f", "e8e7e3", "000000", "ffffff" } },
    { &Theme::accentText, { "ffffff", "1d1d1f", "ffffff", "000000" } },
    { &Theme::btn, { "ffffff", "34343a", "ffffff", "000000" } },
    { &Theme::btnLine, { "cdcbc4", "48484d", "000000", "ffffff" } },
    { &Theme::amber, { "9a7a1c", "d8b85a", "5c4100", "ffd54a" } },
    { &Theme::amberBg, { "fbf2d4", "39331f", "fff3c2", "2b2300" } },
    { &Theme::amberLine, { "e7d28d", "6b5a2a", "5c4100", "ffd54a" } },
    { &Theme::scroll, { "c9c7c1", "48484d", "595959", "b4b4b4" } },
    { &Theme::focus, { "9a9a9f", "7a7a80", "0a3fb8", "6fc6ff" } },
    { &Theme::chip, { "f3f2ee", "34343a", "ffffff", "000000" } },
    { &Theme::previewBg, { "eceae5", "161618", "ffffff", "000000" } },
};

constexpr DerivedRow derivedRows[] = {
    { &DerivedColors::label, { "4b4a4a", "c2c1be", "000000", "ffffff" } },
    { &DerivedColors::hover, { "000000", "ffffff", "000000", "ffffff" }, { .05, .06, .12, .20 } },
    { &DerivedColors::pressed, { "000000", "ffffff", "000000", "ffffff" }, { .10, .11, .22, .30 } },
    { &DerivedColors::rowHover, { "f3f2ee", "2a2a2e", "e0e0e0", "333333" } },
    { &DerivedColors::primaryHover, { "3a3a3d", "ffffff", "333333", "d6d6d6" } },
    { &DerivedColors::primaryPressed, { "000000", "cfcec9", "4d4d4d", "bdbdbd" } },
    { &DerivedColors::primaryOff, { "dedbd5", "3a3a3e", "ffffff", "000000" } },
    { &DerivedColors::primaryOffText, { "97948e", "7c7a78", "595959", "a6a6a6" } },
    { &DerivedColors::secondaryHover, { "f8f7f5", "3d3d44", "e0e0e0", "333333" } },
    { &DerivedColors::secondaryHoverLine, { "b5b2aa", "5d5d64", "000000", "ffffff" } },
    { &DerivedColors::secondaryPressed, { "eeece8", "2e2e33", "c7c7c7", "4d4d4d" } },
    { &DerivedColors::dashedLine, { "b5b2aa", "5d5d64", "000000", "ffffff" } },
    { &DerivedColors::destructive, { "a8321f", "ee8f7f", "8f0000", "ffa79c" } },
    { &DerivedColors::destructiveHover, { "a8321f", "ee8f7f", "8f0000", "ffa79c" }, { .07, .10, .10, .16 } },
    { &DerivedColors::destructivePressed, { "a8321f", "ee8f7f", "8f0000", "ffa79c" }, { .14, .18, .18, .26 } },
    { &DerivedColors::fieldHoverLine, { "bfbcb5", "5d5d64", "000000", "ffffff" } },
    { &DerivedColors::fieldOff, { "f6f5f2", "27272a", "ffffff", "000000" } },
    { &DerivedColors::amberText, { "7d6314", "d8b85a", "5c4100", "ffd54a" } },
    { &DerivedColors::chipLine, { "e6e3dd", "424248", "000000", "ffffff" } },
    { &DerivedColors::chipHover, { "e9e7e2", "3f3f46", "e0e0e0", "333333" } },
    { &DerivedColors::track, { "e2dfd9", "3a3a3e", "8c8c8c", "737373" } },
    { &DerivedColors::scrollHover, { "aeaca6", "5d5d64", "000000", "ffffff" } },
    { &DerivedColors::switchKnob, { "ffffff", "c2c1be", "ffffff", "000000" } },
    { &DerivedColors::ring, { "9a9a9f", "7a7a80", "0a3fb8", "6fc6ff" }, { .34, .42, 1, 1 } },
    { &DerivedColors::ringAmber, { "9a7a1c", "d8b85a", "0a3fb8", "6fc6ff" }, { .24, .26, 1, 1 } },
    { &DerivedColors::focusStrong, { "6e6e73", "a4a4aa", "0a3fb8", "6fc6ff" } },
    { &DerivedColors::thumbEdge, { "000000", "ffffff", "000000", "ffffff" }, { .14, .12, .60, .60 } },
    { &DerivedColors::dim, { "000000", "000000", "000000", "000000" }, { .24, .45, .50, .60 } },
};

Theme makeTheme(Column column)
{
    Theme theme;
    theme.isDark = column == darkColumn || column == strongDarkColumn;
    for (const RoleRow& row : roleRows)
        theme.*row.role = colorFromHex(QString::fromLatin1(row.hex[column]));
    theme.shadow = withAlpha(Qt::black, theme.isDark ? .44 : .17);
    for (const DerivedRow& row : derivedRows)
        theme.derived.*row.role = withAlpha(colorFromHex(QString::fromLatin1(row.hex[column])), row.alpha[column]);
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
    static const Theme theme = makeTheme(lightColumn);
    return theme;
}

const Theme& Theme::dark()
{
    static const Theme theme = makeTheme(darkColumn);
    return theme;
}

const Theme& HighContrast::palette(bool dark)
{
    static const Theme onWhite = makeTheme(strongLightColumn);
    static const Theme onBlack = makeTheme(strongDarkColumn);
    return dark ? onBlack : onWhite;
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
