// Copies of installed fonts that draw each letter as it is: no ligatures, no contextual alternates, which turn a
// name like "1x1" into "1×1". What scripts need to be legible (joining, marks, kerning) stays.
// Thread: the main thread. Knows no sizes and no themes; a copy lives in memory, as long as the program.
#pragma once

#include <QFont>

namespace Quorbel::VerbatimFonts {

/// The same font, drawn by such a copy; made when a face is asked for first. The font itself where none is needed, or
/// where its file cannot be taken apart. The text of missing letters comes from the fonts that it comes from otherwise.
QFont verbatim(const QFont& font);

/// The bytes of a GSUB table without the optional substitutions of Latin, Greek, Cyrillic and what has no script of
/// its own; unchanged when there are none or the table is damaged.
QByteArray withoutOptionalSubstitutions(QByteArray table);

}  // namespace Quorbel::VerbatimFonts
