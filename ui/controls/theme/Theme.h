// The colours that every view draws with, and the way in which a window hands them to the widgets inside it.
// Thread: the main thread. A theme is a value; there is no global one: each window carries its own.
#pragma once

#include <QColor>
#include <QEvent>
#include <QPalette>
#include <QString>

class QWidget;

namespace Quorbel {

/// Shades that follow from the roles but cannot be computed from them. Same two palettes.
struct DerivedColors {
    QColor label{};  ///< field labels, resting icons: whatever must be read but is not the content
    QColor hover{};  ///< translucent ground of a hovered flat control
    QColor pressed{};  ///< the same, while pressed
    QColor rowHover{};  ///< a hovered row of a list on `bg`
    QColor primaryHover{};
    QColor primaryPressed{};
    QColor primaryOff{};  ///< fill of a disabled primary button
    QColor primaryOffText{};
    QColor secondaryHover{};
    QColor secondaryHoverLine{};
    QColor secondaryPressed{};
    QColor dashedLine{};
    QColor destructive{};  ///< text of a destructive button
    QColor destructiveHover{};
    QColor destructivePressed{};
    QColor fieldHoverLine{};
    QColor fieldOff{};  ///< ground of a disabled field
    QColor amberText{};  ///< help lines: amber dark enough to be read as text
    QColor chipLine{};
    QColor chipHover{};
    QColor track{};  ///< progress track
    QColor scrollHover{};
    QColor switchKnob{};  ///< knob of a switch that is off
    QColor ring{};  ///< translucent outer ring of a focused field
    QColor ringAmber{};  ///< the same, of an edited field
    QColor focusStrong{};  ///< second tone of every focus ring: at least 3:1 on panel and field
    QColor thumbEdge{};  ///< hairline inside a thumbnail's edge
    QColor dim{};  ///< laid over the window behind a sheet
    bool operator==(const DerivedColors&) const = default;
};

struct Theme {
    QColor bg{};  ///< window background
    QColor panel{};  ///< panels (inspector, sheets)
    QColor titlebar{};  ///< title and tool bars
    QColor text{};  ///< normal text
    QColor muted{};  ///< secondary text
    QColor line{};  ///< borders
    QColor hair{};  ///< hairline separators, on `bg` only
    QColor field{};  ///< text field background
    QColor fieldLine{};  ///< text field border
    QColor sel{};  ///< selected row background
    QColor selText{};  ///< text on a selected row
    QColor selSub{};  ///< secondary text on a selected row
    QColor accent{};  ///< primary button background
    QColor accentText{};  ///< text on the accent colour
    QColor btn{};  ///< secondary button background
    QColor btnLine{};  ///< secondary button border
    QColor amber{};  ///< edited and batch-included marking
    QColor amberBg{};  ///< background of edited fields and amber chips
    QColor amberLine{};  ///< border of edited fields and amber chips
    QColor scroll{};  ///< scroll indicators
    QColor focus{};  ///< focus ring
    QColor chip{};  ///< keyword chip background
    QColor shadow{};  ///< drop shadows
    QColor previewBg{};  ///< preview column background

    DerivedColors derived{};
    bool isDark = false;

    static const Theme& light();
    static const Theme& dark();

    /// The theme of the nearest ancestor that carries one (see setTheme), the widget itself included; light when
    /// none does. Valid until that theme is changed: read it where you draw, do not keep it.
    static const Theme& of(const QWidget* widget);

    bool operator==(const Theme&) const = default;
};

/// An opaque colour from six hexadecimal digits, red first: "9a7a1c".
QColor colorFromHex(const QString& hex);
/// Gives a widget, normally a window, and everything inside it a theme: sets its palette, sends every descendant a
/// themeChangeEvent() and repaints it. Does nothing when the theme is the same. From the first time on, everything inside
/// a window also gets ApplicationFontChange when the desktop's font changes, which Qt sends to windows alone.
void setTheme(QWidget* root, const Theme& theme);
/// Sent to every widget whose ambient theme changed.
QEvent::Type themeChangeEvent();
/// The palette for stock Qt widgets under this theme.
QPalette paletteFor(const Theme& theme);
/// `a` at 0, `b` at 1, alpha included.
QColor mixed(const QColor& a, const QColor& b, qreal t);
QColor withAlpha(QColor color, qreal alpha);

}  // namespace Quorbel
