// How the map files are laid out; shared by the program that builds them and the renderer that reads them.
//
// A map file divides the earth into bins of equal degrees, row 0 in the north, column 0 eastwards from 0°. All numbers
// are little-endian.
//   magic (8 bytes), kind (16 bits), columns (16), rows (16), zero (16)
//   columns × rows + 1 offsets (32 each) from the start of the file: where each bin begins, and where the last ends
//   the bins, each a sequence of records
// A position is two times 16 bits, x eastwards and y northwards from the bin's south-west corner, in 1/65535 of the
// bin. A shape is its type (8 bits), its number of points (24 bits) and the points. A town is its position, its rank
// (8 bits), flags (8), population (32), the number of bytes in its name (8), and the name in UTF-8; within a bin the
// highest rank comes first.
#pragma once

#include <QtGlobal>

namespace Quorbel::MapFormat {

inline constexpr char magic[8] = { 'Q', 'B', 'L', 'M', 'A', 'P', '\n', 1 };
inline constexpr int headerSize = 16;
inline constexpr int shapeHeaderSize = 4;
inline constexpr int pointSize = 4;
inline constexpr int townHeaderSize = 11;
inline constexpr int binUnits = 65535;

enum class Kind : quint16 { shore = 1, rivers = 2, borders = 3, towns = 4 };

/// Closed polygons, anticlockwise, that fill in this order: each lies inside one of the type before it.
enum ShoreType : quint8 { land = 1, lake = 2, islandInLake = 3, pondOnIsland = 4 };
/// Lines. Rivers have the source's level instead: 0 (wide) to 4 (minor).
enum BorderType : quint8 { national = 1, state = 2 };
enum TownFlag : quint8 { capital = 1, notATown = 2 };

}  // namespace Quorbel::MapFormat
