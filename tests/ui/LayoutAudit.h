// Finds in a window what a reader would: texts that are cut off or shortened, texts over texts, widgets over widgets.
// For tests only. Every widget is asked to paint into a device that notes the texts and draws nothing.
#pragma once

#include <QSet>
#include <QWidget>

namespace Quorbel::Test {

struct LayoutAudit {
    QSet<QString> texts{};  ///< all that was drawn, shortened texts as they were drawn
    QSet<QString> tightFields{};  ///< contents of fields that are wider than their field
    QSet<QString> altered{};  ///< drawn with other glyphs than those of their letters
    QStringList faults{};  ///< in words

    /// What is shortened here, or scrolls in its field, and in none of the others: "shortened: No uns…".
    QStringList worseThan(const QList<LayoutAudit>& others) const;
};

/// Looks at all that is visible in `root`. Lists and scrolled forms may go on below their lower edge.
LayoutAudit audit(QWidget* root);

/// A widget, or a text or picture that one draws, in the coordinates of the widget that is looked at.
struct Drawn {
    QString what{};
    QRectF place{};
};

/// All that is visible in `root`, in the order of the tree. Of fields not what is typed in them.
QList<Drawn> drawnIn(QWidget* root);

}  // namespace Quorbel::Test
