// Sizes, fonts and motion that all views share. One point of the design is one device-independent pixel at the
// desktop's standard font size, and grows with that size.
// Thread: the main thread.
#pragma once

#include <QFont>
#include <QObject>
#include <QSize>

#include <functional>

class QWidget;

namespace Quorbel {

/// How much larger or smaller than standard the desktop's text is; 1 at the usual sizes of 9 to 11 points.
qreal textScale();
/// The design's points in whole device-independent pixels.
int px(qreal points);
/// The same, not rounded: for what is painted.
qreal pxF(qreal points);
/// A window's least size, of the design's points: no larger than the screen where text is larger than usual.
QSize leastWindow(QSize points);

/// Inter when it is installed, else the system's font. `points` are the design's.
QFont sansFont(qreal points, QFont::Weight weight = QFont::Normal);
/// JetBrains Mono when it is installed, else the system's fixed font.
QFont monoFont(qreal points);
/// The same two for names of files and folders, tags and what somebody typed: every letter as it is (VerbatimFonts.h).
QFont verbatimFont(qreal points, QFont::Weight weight = QFont::Normal);
QFont verbatimMonoFont(qreal points);

/// False when the desktop asks for no animations, or QUORBEL_REDUCE_MOTION is set to anything but 0.
bool motionEnabled(const QWidget* widget);

namespace Duration {  // milliseconds
constexpr int hover = 90;
constexpr int marking = 120;  ///< focus rings, the amber of edited fields
constexpr int sheetIn = 180;
constexpr int sheetOut = 120;
constexpr int banner = 160;
constexpr int column = 200;
constexpr int progress = 150;
}  // namespace Duration

/// Calls `restyle` now, when the widget is first shown (it may have found its window by then), and whenever its theme
/// or the desktop's font changes. For what is set once and not read while painting: fonts, palettes, fixed sizes.
void onRestyle(QWidget* widget, std::function<void()> restyle);

}  // namespace Quorbel
