#include "core/iptc/Vocabularies.h"

#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <QFile>
#include <QHash>

#include <algorithm>

// A static library's resources are linked only where somebody asks for them; not within a namespace.
static void initResource()
{
    Q_INIT_RESOURCE(quorbel_vocabularies);
}

namespace Quorbel::Vocabularies {

using namespace Qt::StringLiterals;

namespace {

struct Loaded {
    QList<Vocabulary> vocabularies{};
    QHash<QString, QHash<QString, qsizetype>> places{};  ///< by id and folded code, whole and alone: the term's place
};

enum class Stored { address, code, name };

struct Reading {
    Vocabulary vocabulary{};
    Stored stored = Stored::code;
    QHash<QString, qsizetype> places{};
};

// Of an address the part after the vocabulary's own; of a subject of IPTC's older block the digits.
QString folded(const QString& code, const QString& address)
{
    QString text = code.trimmed().toCaseFolded();
    if (text.startsWith("https://"_L1))
        text.remove(4, 1);
    if (!address.isEmpty() && text.startsWith(address.toCaseFolded()))
        text.remove(0, address.size());
    return text.startsWith("iptc:"_L1) ? text.section(u':', 1, 1) : text;
}

void readHeader(Reading& reading, const QString& name, const QString& value)
{
    static const QMap<QString, Stored> forms{ { u"address"_s, Stored::address }, { u"code"_s, Stored::code },
        { u"name"_s, Stored::name } };
    Vocabulary& vocabulary = reading.vocabulary;
    if (name == u"title")
        vocabulary.title = value;
    else if (name == u"source")
        vocabulary.source = value;
    else if (name == u"date")
        vocabulary.date = value;
    else if (name == u"address")
        vocabulary.address = value;
    else if (name == u"stored")
        reading.stored = forms.value(value, Stored::code);
}

void readTerm(Reading& reading, QString line)
{
    const bool isRetired = line.startsWith("- "_L1);
    const QStringList cells = line.sliced(isRetired ? 2 : 0).split(u'|');
    const QString code = cells.value(0).trimmed();
    VocabularyTerm term{
        .code = code, .name = cells.value(1).trimmed(), .note = cells.value(2).trimmed(), .isRetired = isRetired
    };
    if (code.isEmpty() || reading.stored == Stored::name)
        term.code = term.name;
    else if (reading.stored == Stored::address)
        term.code = reading.vocabulary.address + code;
    for (const QString& key : { code, term.code })
        if (!key.isEmpty())
            reading.places.insert(folded(key, reading.vocabulary.address), reading.vocabulary.terms.size());
    reading.vocabulary.terms.append(term);
}

Loaded load()
{
    initResource();
    QFile file(u":/iptc/vocabularies.txt"_s);
    Loaded loaded;
    if (!file.open(QIODevice::ReadOnly))
        return loaded;
    Reading reading;
    const auto finish = [&] {
        if (!reading.vocabulary.id.isEmpty()) {
            loaded.places.insert(reading.vocabulary.id, reading.places);
            loaded.vocabularies.append(reading.vocabulary);
        }
    };
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(u'[')) {
            finish();
            reading = { .vocabulary = { .id = line.sliced(1, line.indexOf(u']') - 1) } };
        } else if (line.startsWith(u'#') || line.isEmpty()) {
            continue;
        } else if (line.contains(u'|')) {
            readTerm(reading, line);
        } else {
            readHeader(reading, line.section(u':', 0, 0), line.section(u':', 1).trimmed());
        }
    }
    finish();
    return loaded;
}

const Loaded& loaded()
{
    static const Loaded once = load();
    return once;
}

QString searchable(const QString& text)
{
    return Text::foldingDiacritics(text).toCaseFolded();
}

// 0 is best; nothing when a word is missing.
std::optional<int> rankOf(const QString& termName, const QString& note, const QString& code, const QString& typed)
{
    const QString name = searchable(termName);
    const QString everything = name + u'\n' + searchable(note) + u'\n' + searchable(code);
    const QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    const auto isIn = [](const QString& text) { return [&text](const QString& word) { return text.contains(word); }; };
    if (!std::all_of(words.cbegin(), words.cend(), isIn(everything)))
        return std::nullopt;
    if (name.startsWith(typed))
        return 0;
    if ((u' ' + name).contains(u' ' + typed))
        return 1;
    return std::all_of(words.cbegin(), words.cend(), isIn(name)) ? 2 : 3;
}

// As it is shown, or else in English.
std::optional<int> rank(const VocabularyTerm& term, const QString& typed)
{
    const auto shown = rankOf(Texts::shown(term.name), Texts::shown(term.note), term.code, typed);
    return shown || Texts::isEnglish() ? shown : rankOf(term.name, term.note, term.code, typed);
}

}  // namespace

const QList<Vocabulary>& all()
{
    return loaded().vocabularies;
}

const Vocabulary* find(const QString& id)
{
    const QList<Vocabulary>& vocabularies = all();
    const auto found = std::find_if(vocabularies.cbegin(), vocabularies.cend(),
        [&id](const Vocabulary& vocabulary) { return vocabulary.id == id; });
    return found == vocabularies.cend() ? nullptr : &*found;
}

const VocabularyTerm* term(const QString& id, const QString& code)
{
    const Vocabulary* vocabulary = find(id);
    if (!vocabulary)
        return nullptr;
    const QHash<QString, qsizetype> places = loaded().places.value(id);
    const auto place = places.constFind(folded(code, vocabulary->address));
    return place == places.cend() ? nullptr : &vocabulary->terms.at(*place);
}

QString nameOf(const QString& id, const QString& code)
{
    const VocabularyTerm* known = term(id, code);
    return known ? Texts::shown(known->name) : code;
}

QString namesOf(const QString& id, const QString& codes)
{
    QStringList names;
    for (const QString& code : codes.split(u','))
        if (const VocabularyTerm* known = term(id, code))
            names.append(Texts::shown(known->name));
        else
            return codes;
    return names.join(u", "_s);
}

QList<const VocabularyTerm*> search(const QString& id, const QString& typed)
{
    const Vocabulary* vocabulary = find(id);
    if (!vocabulary)
        return {};
    const QString words = searchable(typed).simplified();
    QList<std::pair<int, const VocabularyTerm*>> found;
    for (const VocabularyTerm& term : vocabulary->terms)
        if (const std::optional<int> one = rank(term, words))
            found.append({ term.isRetired ? *one + 10 : *one, &term });
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QList<const VocabularyTerm*> terms;
    for (const auto& [rank, term] : found)
        terms.append(term);
    return terms;
}

}  // namespace Quorbel::Vocabularies
