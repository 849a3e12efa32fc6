// Whether texts bound for IPTC fit the encoding that ExifTool stores them in.
// Thread: any. Pure: starts nothing, touches no file.
//
// A file that does not declare CodedCharacterSet gets its IPTC in Windows Latin 1, where ExifTool replaces what
// does not fit by question marks, with exit status 0. Declaring UTF-8 in the same command would garble the values
// that are already there; a run of its own beforehand re-encodes them.
#pragma once

#include "core/tool/WriteCommand.h"

namespace Quorbel::IptcEncoding {

/// Whether some assignment ("東京" to "IPTC:City") binds a text for IPTC that does not fit Windows Latin 1 (code page
/// 1252).
bool needsUtf8(const QList<Assignment>& assignments);
/// The run that turns all IPTC of a file into declared UTF-8.
WriteCommand conversion();

}  // namespace Quorbel::IptcEncoding
