// The heading above the photos of one folder: what it says, to the eye and to screen readers.
// Thread: the main thread. A drawing and its texts; knows no list.
#pragma once

#include "app/model/library/FolderGroups.h"

#include <QVariant>

class QPainter;
class QStyleOptionViewItem;

namespace Quorbel::FolderHeading {

/// "Alpstein / Meadows".
QString text(const FolderGroup& group);
/// What an item model answers for it.
QVariant data(const FolderGroup& group, int role);
/// With the option's state, at the top of its rectangle.
void paint(QPainter& painter, const QStyleOptionViewItem& option, int height, const FolderGroup& group);

}  // namespace Quorbel::FolderHeading
