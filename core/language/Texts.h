// The program's own texts in the user's language. The English text is the identity of each: it stands in the code, and
// is what code compares, stores and finds translations by.
// Thread: tr, shown and mark any; use before other threads ask.
//
// All texts share one context, so that a word reads the same wherever it stands. Where one English word would need two
// in another language, each gets a meaning ("verb", "of a photo"), which translators see.
#pragma once

#include <QString>

#include <memory>

class QTranslator;

namespace Quorbel {

class Texts final {
public:
    Texts() = delete;

    /// The text in the user's language, else in English. Placeholders are numbered (%1). With a count, "%n" in the text
    /// becomes it in plain digits, and the plural form is the count's. English has its two forms in the text itself:
    /// "%n photo(s) (is|are) read-only" is "1 photo is read-only" and "2 photos are read-only".
    static QString tr(const char* english, const char* meaning = nullptr, qsizetype count = -1);
    /// The English text as it stands, made known to translators: for tables whose texts are identities. Whoever shows
    /// it asks shown() for it.
    static QString mark(const char* english);
    /// A marked text in the user's language. What is no such text (a name of the user's own) comes back as it is.
    static QString shown(const QString& english);
    /// A label for the middle of a sentence: in lower case in English, as it stands in every other language, where that
    /// would be wrong for nouns (German) or means nothing (Japanese).
    static QString inSentence(const QString& label);
    /// A sentence that follows other words: English opens it with a small letter, but for names ("XMP"); others do not.
    static QString continued(const QString& sentence);

    /// Whether the texts are the English ones.
    static bool isEnglish();

    /// Under which translations hold the texts.
    static const char* context();

    /// Takes the texts from it from now on; from nobody (English) without one.
    static void use(std::shared_ptr<const QTranslator> translator);
};

}  // namespace Quorbel
