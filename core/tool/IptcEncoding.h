// Whether texts bound for IPTC fit the encoding that ExifTool stores them in, and what a file's own texts are in.
// Thread: any. Pure: starts nothing, touches no file.
//
// A file that does not declare CodedCharacterSet gets its IPTC in Windows Latin 1, where ExifTool replaces what
// does not fit by question marks, with exit status 0. Declaring UTF-8 in the same command would garble the values
// that are already there; a run of its own beforehand re-encodes them.
#pragma once

#include "core/tool/TagDump.h"
#include "core/tool/WriteCommand.h"

namespace Quorbel::IptcEncoding {

/// The tag that stands for a file's whole IPTC, byte for byte.
QString blockTag();
/// Whether some assignment ("東京" to "IPTC:City") binds a text for IPTC that does not fit Windows Latin 1 (code page
/// 1252).
bool needsUtf8(const QList<Assignment>& assignments);

enum class Stored {
    none,  ///< there is no IPTC
    latin1,  ///< undeclared, and not UTF-8
    undeclaredUtf8,  ///< undeclared, and all that is no ASCII is valid UTF-8
    declaredUtf8,  ///< nothing has to be re-encoded
    severalBlocks,  ///< re-encoding would copy one of them over the others
};

/// Arguments that read, for TagDump, what storedIn() looks at.
QStringList readArgs();
/// What a file's texts are in.
Stored storedIn(const FileTags& tags);
/// The run that turns all IPTC of such a file into declared UTF-8, or declares what is about to be its first; empty
/// where it is, or must not be done.
WriteCommand conversion(Stored stored);

}  // namespace Quorbel::IptcEncoding
