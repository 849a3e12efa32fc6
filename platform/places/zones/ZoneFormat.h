// How the file of time zones is laid out; shared by the program that builds it and TimeZones, which reads it.
//
// The earth in rows of 1/100 degree, row 0 at the south pole. All numbers are little-endian.
//   magic (8 bytes), number of zones (16 bits), zero (16)
//   an offset (32) for each row, from the start of the file; equal rows share theirs
//   the zones: each the number of bytes in its IANA name (8), in its town (8), the name, the town in UTF-8
//   the rows: the number of runs (16), and the runs from west to east: the first column (16), in 1/65536 of the way
//   around from 180° west, and the zone (16), or `nowhere`; in front of the first run it is nowhere
#pragma once

#include <QtGlobal>

namespace Quorbel::ZoneFormat {

inline constexpr char magic[8] = { 'Q', 'B', 'L', 'Z', 'O', 'N', 'E', 1 };
inline constexpr int headerSize = 12;
inline constexpr int rowsPerDegree = 100;
inline constexpr int rows = 180 * rowsPerDegree;
inline constexpr int columns = 65536;
inline constexpr int runSize = 4;
inline constexpr quint16 nowhere = 0xFFFF;

}  // namespace Quorbel::ZoneFormat
