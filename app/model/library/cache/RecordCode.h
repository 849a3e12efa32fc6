// One record as bytes that can be stored: compact, and sealed with the file and the reader that it is of.
// Thread: any. Pure. Knows no database.
#pragma once

#include "app/model/library/PhotoFile.h"

#include <QByteArray>

#include <optional>

namespace Quorbel::RecordCode {

/// What the reader found in the photo, and beside it. Names and dates are not among it: the file system knows them.
/// Empty for a record that could not be had back exactly, or was not read.
QByteArray encoded(const ImageRecord& record);

/// The same, sealed: only for this file and its sidecar, as they are at that look, and for the same reader it opens
/// again. A byte that is not as it was breaks the seal.
QByteArray sealed(const QByteArray& encoded, const PhotoFile& file, const QByteArray& reader);
/// What was sealed; nothing when the seal is another's, or broken. Valid as long as the bytes are.
std::optional<QByteArrayView> unsealed(const QByteArray& sealed, const PhotoFile& file, const QByteArray& reader);
/// The record as a read of the file would give it; nothing when the seal is another's, or broken.
std::optional<ImageRecord> opened(const QByteArray& sealed, const PhotoFile& file, const QByteArray& reader);

/// What the bytes mean depends on the fields and camera rows of the schema, and so does what is read: it is another
/// fingerprint when one of them changed.
QByteArray schemaFingerprint();

}  // namespace Quorbel::RecordCode
