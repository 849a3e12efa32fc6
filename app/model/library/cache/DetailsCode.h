// The details of one photo as bytes that can be stored; RecordCode seals them with the file and the reader.
// Thread: any. Pure. Knows no database.
#pragma once

#include "core/schema/PhotoDetails.h"

#include <QByteArray>

#include <optional>

namespace Quorbel::DetailsCode {

/// Raise it when the bytes mean something else, or an unchanged photo has other details than before.
constexpr int version = 3;

/// All but the photo's address. Empty for details that could not be had back exactly.
QByteArray encoded(const PhotoDetails& details);
std::optional<PhotoDetails> decoded(QByteArrayView bytes);

/// What details depend on beside the photo and its reader: the homes of the fields, and those of keyword paths.
QByteArray fingerprint();

}  // namespace Quorbel::DetailsCode
