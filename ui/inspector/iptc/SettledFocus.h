// Gives the keyboard to what has just come into a form. Thread: the main thread.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace Quorbel {

/// Whoever scrolls to what gets the keyboard does so at once: all is laid out first. Rows that change their shape with
/// their width ask for another turn, in each card around them.
inline void focusWhereItStands(QWidget& widget)
{
    for (int turn = 0; turn < 4; ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    widget.setFocus(Qt::TabFocusReason);
}

}  // namespace Quorbel
