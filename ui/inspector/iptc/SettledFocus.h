// The keyboard, and the room on screen, for what has just come into a form. Thread: the main thread.
#pragma once

#include "ui/controls/scrolling/ScrollArea.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace Quorbel {

/// Lays all out at once. Rows that change their shape with their width ask for another turn, in each card around them.
inline void settleLayouts()
{
    for (int turn = 0; turn < 4; ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// Whoever scrolls to what gets the keyboard does so at once, and finds it where it will stand.
inline void focusWhereItStands(QWidget& widget)
{
    settleLayouts();
    widget.setFocus(Qt::TabFocusReason);
}

/// Scrolls so that all of it is on screen, or its top where it is too high.
inline void showWhereItStands(const QWidget& widget)
{
    settleLayouts();
    if (ScrollArea* area = ScrollArea::around(widget))
        area->reveal(widget);
}

}  // namespace Quorbel
