// What a folded thing says in one line: what matters first, and behind it the rest.
// Thread: the main thread. A value and its drawing.
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace Quorbel {

struct Theme;

struct Summary {
    QString first{};  ///< in the color of texts
    QString rest{};  ///< in that of labels; none when empty
    bool operator==(const Summary&) const = default;

    /// "Horn · Thurgau, Switzerland"
    QString text() const;
    /// In pixels, all of it.
    int width() const;
    /// In one line of 13 points, in the middle of the rectangle's height. What has no room ends in "…".
    void paint(QPainter& painter, const QRectF& rect, const Theme& theme) const;
};

}  // namespace Quorbel
