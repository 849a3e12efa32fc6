// Windows Latin 1 (code page 1252), in which ExifTool stores IPTC that declares no encoding, and what becomes of texts
// that pass through it. Thread: any. Pure.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Quorbel::CodePage1252 {

/// Whether the page has the character.
bool has(QChar c);
/// The bytes that read as this text; nothing when the page lacks one of its characters.
std::optional<QByteArray> encoded(const QString& text);
/// What these bytes read as; what the page does not have stays a control character.
QString decoded(const QByteArray& bytes);
/// The damaged forms of a text, none of them the text itself: with "?" for what the page does not have ("??????"), and
/// as its UTF-8 looks when it is read as Latin 1 ("VÃ½let").
QStringList damagedForms(const QString& text);

}  // namespace Quorbel::CodePage1252
