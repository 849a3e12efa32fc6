#include "platform/places/search/PlaceSearch.h"

#include "platform/places/search/PlaceText.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Weights of a hit, added to the place's own rank (a town of 100,000 has 7, of ten million 10). Found by trying them on
// the towns of the world's large airports; bench_places measures how well they do.
constexpr double ownNameScore = 2.2;
constexpr double otherNameScore = 0;
constexpr double wholeNameScore = 1.4;
constexpr double typedShareScore = 2.0;
constexpr double contextScore = -1;
constexpr double misspeltScore = -3.0;
constexpr double codeScore = 10;  // an airport by its code in capitals, above any city
constexpr double nearScore = 0.8;
constexpr double nearDistance = 500;  // km

// Rows asked for in one go. More do not change who comes first.
constexpr int rowsPerQuestion = 60;
constexpr int fewHits = 3;
constexpr qsizetype shortestMisspelt = 4;

// The typed words that name the place, folded.
struct TypedName {
    QString text{};
    bool isFinished = false;  // other words follow, so that its last word is whole
};

bool startsLaterWord(const QString& folded, const QString& typed)
{
    return folded.contains(u' ' + typed);
}

struct NameMatch {
    bool starts = false;  // the name begins with what was typed
    bool continues = false;  // a later word of it does
    double score = 0;
    QString name{};
};

NameMatch matchName(const QString& name, const TypedName& typed, double startScore)
{
    const auto folded = foldPlaceName(name);
    const auto typedSize = typed.text.size();
    const bool isWhole = folded.size() == typedSize;
    if (!folded.startsWith(typed.text) || (typed.isFinished && !isWhole && folded[typedSize] != u' '))
        return { false, startsLaterWord(folded, typed.text), 0, name };
    const double share = double(typedSize) / double(folded.size());
    return { true, false, startScore + typedShareScore * share + (isWhole ? wholeNameScore : 0), name };
}

// Whether folding may turn the name into one that begins with the typed text, judged by the first letter: folding is
// the dear part.
bool mayStart(QStringView name, const QString& typed)
{
    constexpr char16_t firstNonLatin = 0x0370;
    const auto first = name.front().toLower().unicode();
    const auto wanted = typed.front().unicode();
    const bool isPlainLetter = first >= u'a' && first <= u'z';
    return isPlainLetter ? first == wanted : (first < firstNonLatin) == (wanted < firstNonLatin);
}

// Of the names, one a line, the one that the typed text begins best; or else, if asked for, one of which it begins a
// later word.
NameMatch bestAlternate(const QString& alternates, const TypedName& typed, bool wantsLaterWords)
{
    NameMatch best;
    const auto names = QStringView(alternates).split(u'\n', Qt::SkipEmptyParts);
    for (const auto name : names) {
        if (!mayStart(name, typed.text))
            continue;
        const auto match = matchName(name.toString(), typed, otherNameScore);
        if (match.starts && (!best.starts || match.score > best.score))
            best = match;
    }
    for (qsizetype i = 0; wantsLaterWords && !best.starts && !best.continues && i < names.size(); ++i)
        best = matchName(names[i].toString(), typed, otherNameScore);
    return best;
}

// Puts questions to the database and keeps the best score of each place that comes back.
class Search {
public:
    Search(PlaceDatabase& database, const PlaceQuery& query)
        : m_database(database)
        , m_query(query)
        , m_typed(foldPlaceName(query.text))
        , m_words(m_typed.split(u' ', Qt::SkipEmptyParts))
    {
    }

    QList<PlaceHit> run()
    {
        if (m_words.isEmpty())
            return {};
        askForCode();
        askForWholeText();
        for (auto named = m_words.size() - 1; named >= 1 && m_hits.size() < m_query.limit; --named)
            askWithContext(named);
        if (m_hits.size() < fewHits)
            addMisspelt();
        return best();
    }

private:
    static QString phrase(const QString& folded) { return u'"' + folded + u'"'; }

    void askForWholeText()
    {
        const auto whole = phrase(markNameEnd(m_typed));
        const auto start = phrase(m_typed) + u'*';
        ask(u"name : ^ "_s + whole, { m_typed, false });
        ask(u"alternates : "_s + whole, { m_typed, false });
        ask(u"name : ^ "_s + start, { m_typed, false });
        ask(u"{name alternates} : "_s + start, { m_typed, false });
    }

    // The first words name the place; each of the others begins the name or code of its state or country, or the name
    // of the town it belongs to.
    void askWithContext(qsizetype named)
    {
        const QString name = m_words.first(named).join(u' ');
        QString context;
        for (const auto& word : m_words.sliced(named)) {
            // One letter says too little to leave places out for.
            if (word.size() < initialsSize)
                continue;
            context += u" AND context : ("_s + placesBeginning(word) + u')';
        }
        ask(u"{name alternates} : "_s + phrase(name) + context, { name, true });
    }

    QString placesBeginning(const QString& word)
    {
        auto& terms = m_contexts[word];
        if (!terms.isEmpty())
            return terms;
        terms = phrase(townWord(word)) + u'*';
        if (word.size() == initialsSize)
            return terms += u" OR "_s + phrase(initialsWord(word));
        for (const auto& country : m_database.countries()) {
            if (country.words.startsWith(word) || startsLaterWord(country.words, word))
                terms += u" OR "_s + phrase(countryWord(country.code));
        }
        for (qsizetype i = 0; i < m_database.states().size(); ++i) {
            const auto& words = m_database.states()[i].words;
            if (words.startsWith(word) || startsLaterWord(words, word))
                terms += u" OR "_s + phrase(stateWord(int(i)));
        }
        return terms;
    }

    // Three capitals are meant as an airport's code, whatever else begins with them.
    void askForCode()
    {
        const auto text = m_query.text.trimmed();
        if (text.size() == 3 && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'A' && c <= u'Z'; }))
            ask(u"context : "_s + phrase(codeWord(text)), { m_typed, false }, codeScore);
    }

    void ask(const QString& expression, const TypedName& typedName, double bonus = 0)
    {
        for (const auto& row : m_database.matching(expression, rowsPerQuestion))
            add(row, typedName, bonus);
    }

    void add(const PlaceRow& row, const TypedName& typedName, double bonus)
    {
        if (m_seen.contains(row.id))
            return;
        m_seen.insert(row.id);
        PlaceHit hit{ row, 0, {} };
        auto match = matchName(row.name, typedName, ownNameScore);
        if (!match.starts) {
            const auto other = bestAlternate(row.alternates, typedName, !match.continues);
            if (other.starts || other.continues) {
                match = other;
                hit.matched = other.name;
            }
        }
        hit.score = row.rank + match.score + (typedName.isFinished ? contextScore : 0) + bonus + nearness(row);
        m_hits.append(hit);
    }

    double nearness(const PlaceRow& row) const
    {
        if (!m_query.bias)
            return 0;
        return nearScore * std::max(0.0, 1 - kilometersBetween(*m_query.bias, row.point) / nearDistance);
    }

    void addMisspelt()
    {
        const auto typed = m_typed.toUtf8();
        if (typed.size() < shortestMisspelt)
            return;
        int found = 0;
        m_database.visitSpellings([&](int id, QByteArrayView name) {
            if (isMisspeltStart(typed, name) && !m_seen.contains(id)) {
                addMisspelt(id, double(typed.size()) / double(name.size()));
                ++found;
            }
            return found < rowsPerQuestion;
        });
    }

    void addMisspelt(int id, double share)
    {
        m_seen.insert(id);
        if (const auto row = m_database.place(id)) {
            const double score = row->rank + misspeltScore + typedShareScore * std::min(1.0, share) + nearness(*row);
            m_hits.append({ *row, score, {} });
        }
    }

    QList<PlaceHit> best()
    {
        std::stable_sort(m_hits.begin(), m_hits.end(),
            [](const auto& a, const auto& b) { return a.score != b.score ? a.score > b.score : a.row.id < b.row.id; });
        QList<PlaceHit> kept;
        QSet<std::pair<QString, std::pair<int, int>>> shown;
        for (const auto& hit : m_hits) {
            if (kept.size() >= m_query.limit)
                break;
            const std::pair key(hit.row.name, std::pair(hit.row.state, hit.row.country));
            if (!shown.contains(key))
                kept.append(hit);
            shown.insert(key);
        }
        return kept;
    }

    PlaceDatabase& m_database;
    const PlaceQuery& m_query;
    QString m_typed;
    QStringList m_words;
    QSet<int> m_seen{};
    QHash<QString, QString> m_contexts{};  // by word: what was asked for it
    QList<PlaceHit> m_hits{};
};

}  // namespace

QList<PlaceHit> findPlaces(PlaceDatabase& database, const PlaceQuery& query)
{
    return Search(database, query).run();
}

Placemark placemarkOf(const PlaceDatabase& database, const PlaceRow& row)
{
    const auto country = database.countries().value(row.country);
    return { row.name, row.kind == PlaceKind::town ? row.name : row.town, database.states().value(row.state).name,
        country.name, country.code, row.point };
}

}  // namespace Quorbel
