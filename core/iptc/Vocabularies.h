// The vocabularies of the IPTC Photo Metadata Standard: what each code is called, and what it means. They are data
// (vocabularies.txt), with where they come from and how old they are; codes that are not in them are as good as others.
// Thread: any. Built once, then immutable.
#pragma once

#include <QList>
#include <QString>

namespace Quorbel {

struct VocabularyTerm {
    QString code{};  ///< what files hold, and what a save writes
    QString name{};  ///< as the vocabulary spells it, in English; whoever shows it asks Texts::shown
    QString note{};  ///< what it means, in one line; may be empty
    bool isRetired = false;
    bool operator==(const VocabularyTerm&) const = default;
};

struct Vocabulary {
    QString id{};
    QString title{};
    QString source{};
    QString date{};
    QString address{};  ///< what stands before its codes where they are addresses; "" when it has none
    QList<VocabularyTerm> terms{};
    bool operator==(const Vocabulary&) const = default;
};

namespace Vocabularies {

const QList<Vocabulary>& all();
/// Nothing for an id that is none. Pointers stay valid for ever, those to terms, too.
const Vocabulary* find(const QString& id);
/// Whether it is written as an address, with http or https, or as the code alone, and in any case of letters. IPTC's
/// older block keeps subjects as "IPTC:01000000:::": those, too. Nothing for an unknown code.
const VocabularyTerm* term(const QString& id, const QString& code);
/// In the user's language; the code itself when it is unknown.
QString nameOf(const QString& id, const QString& code);
/// The same of one code or of several with commas between them, as one text holds them; the text when one is unknown.
QString namesOf(const QString& id, const QString& codes);
/// Terms in whose name, note (as shown, or in English) or code every word of the text is to be found, in any case and
/// without accents; those whose names begin with it first, retired ones last. All of them for an empty text.
QList<const VocabularyTerm*> search(const QString& id, const QString& typed);

}  // namespace Vocabularies

}  // namespace Quorbel
