// How the members of a structure stand in a card: which share a row, which are rarely used, and what may hold more than
// the table of structures tells.
// Thread: any. Pure.
#pragma once

#include <QString>

namespace Quorbel {

struct StructureSpec;

namespace StructureLayout {

/// A member in the row of another, at its right.
struct Beside {
    QString member{};
    double width = 0;  ///< points
    bool isMono = false;
};

/// Nothing has an empty member.
Beside beside(const QString& member);
/// Whether it stands beside another.
bool isBeside(const QString& member);
/// Not shown before it is asked for, unless it holds something. `text` is the structure: an outline in the shape of a
/// circle needs no width.
bool isRare(const StructureSpec& structure, const QString& text, const QString& member);

}  // namespace StructureLayout

}  // namespace Quorbel
