// A field's texts in further languages. Each is a field of its own wherever fields are keyed by a string: in drafts,
// batches, edits and plans it stands under "title@de". The text without a language keeps the field's own id.
// Thread: any. Pure.
#pragma once

#include "core/schema/FieldSpec.h"

#include <optional>

namespace Quorbel::FieldLanguages {

struct Language {
    const FieldSpec* field = nullptr;
    QString code{};  ///< as ExifTool spells it: "de", "en-US", "zh-Hans"
};

/// One that can be chosen.
struct Choice {
    QString code{};
    QString name{};
};

/// "title@de"; no field of the schema and no custom field has such a key.
QString key(const QString& id, const QString& code);
/// The field and the language of such a key; nothing for any other one, and for a field that has no languages.
std::optional<Language> languageIn(const QString& key);
/// The tag that holds this text: "XMP-dc:Title-de". "" for any other key.
QString tag(const QString& key);
/// In the user's language: "Title (German)".
QString label(const QString& key);
/// The same of the language, with script and country where the code has them; the code itself when it says nothing.
QString name(const QString& code);
/// Whether ExifTool can store a text under this code: letters, then letters and digits in parts, with hyphens between
/// them; not "x-default", which is the text without a language.
bool isCode(const QString& code);
/// The code as ExifTool writes it: the language in lower case, a country in upper case.
QString spelling(const QString& code);
/// Languages that are offered, by their names.
const QList<Choice>& choices();

}  // namespace Quorbel::FieldLanguages
