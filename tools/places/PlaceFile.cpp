#include "tools/places/PlaceFile.h"

#include "platform/places/search/PlaceText.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <numeric>

namespace Quorbel::Places {

using namespace Qt::StringLiterals;

namespace {

// Numbers of places follow their rank, the likeliest first: asking for the first sixty rows is asking for the best.
// The text index keeps no copy of its text. Everything in it is folded already, so that the simplest tokenizer, which
// takes any byte above 127 as part of a word, is the right one.
const auto schema = QStringList{
    u"PRAGMA page_size=4096"_s,
    u"PRAGMA journal_mode=OFF"_s,
    u"PRAGMA synchronous=OFF"_s,
    u"PRAGMA user_version=1"_s,
    u"CREATE TABLE country(id INTEGER PRIMARY KEY, code TEXT, name TEXT, words TEXT)"_s,
    u"CREATE TABLE state(id INTEGER PRIMARY KEY, name TEXT, words TEXT)"_s,
    u"CREATE TABLE place(id INTEGER PRIMARY KEY, kind INTEGER, name TEXT, alternates TEXT, town TEXT, "
    "state INTEGER, country INTEGER, latitude INTEGER, longitude INTEGER, population INTEGER, "
    "rank INTEGER, cell INTEGER)"_s,
    u"CREATE VIRTUAL TABLE place_text USING fts5(name, alternates, context, content='', columnsize=0, "
    "prefix='1 2 3', tokenize='ascii')"_s,
    u"CREATE TABLE spelling(id INTEGER PRIMARY KEY, records BLOB)"_s,
    u"CREATE TABLE area(id INTEGER PRIMARY KEY, country INTEGER, state INTEGER)"_s,
    u"CREATE TABLE land(row INTEGER PRIMARY KEY, runs BLOB)"_s,
};
const auto finish = QStringList{
    u"INSERT INTO place_text(place_text) VALUES('optimize')"_s,
    u"CREATE INDEX town_cell ON place(cell) WHERE kind = 0"_s,
    u"COMMIT"_s,
    u"VACUUM"_s,
};

// Alternate names of towns at least this large are searched for misspellings, too.
constexpr qint64 largeTown = 100'000;

class Writer {
public:
    explicit Writer(const QSqlDatabase& database)
        : m_database(database)
    {
    }

    void run(const QStringList& statements)
    {
        for (const auto& statement : statements) {
            QSqlQuery query(m_database);
            if (!query.exec(statement))
                throw BuildError(statement, query.lastError().text());
        }
    }

    QSqlQuery prepare(const QString& statement)
    {
        QSqlQuery query(m_database);
        if (!query.prepare(statement))
            throw BuildError(statement, query.lastError().text());
        return query;
    }

    static void insert(QSqlQuery& query, const QVariantList& values)
    {
        for (qsizetype i = 0; i < values.size(); ++i)
            query.bindValue(int(i), values[i]);
        if (!query.exec())
            throw BuildError(query.lastQuery(), query.lastError().text());
    }

private:
    QSqlDatabase m_database;
};

// Cells of a quarter degree, row by row from the south pole.
int cellOf(Point point)
{
    const int row = std::clamp(int(std::floor((point.latitude + 90) * 4)), 0, 719);
    const int column = std::clamp(int(std::floor((point.longitude + 180) * 4)), 0, 1439);
    return row * 1440 + column;
}

int inMillionths(double degrees)
{
    return int(std::lround(degrees * 1e6));
}

QString searchedName(const QString& name)
{
    return markNameEnd(foldPlaceName(name));
}

void addInitials(QStringList& context, const QString& words)
{
    for (const auto& word : words.split(u' ', Qt::SkipEmptyParts))
        context << initialsWord(word.left(initialsSize));
}

QString contextOf(const Entry& entry, const Gazetteer& gazetteer)
{
    const auto& country = gazetteer.countries[entry.country];
    QStringList context{ countryWord(country.code) };
    addInitials(context, foldPlaceName(country.name) + u' ' + country.shortCodes);
    if (entry.state >= 0) {
        context << stateWord(entry.state);
        addInitials(context, gazetteer.states[entry.state].words());
    }
    for (const auto& word : foldPlaceName(entry.town).split(u' ', Qt::SkipEmptyParts))
        context << townWord(word);
    if (!entry.code.isEmpty())
        context << codeWord(entry.code);
    context.removeDuplicates();
    return context.join(u' ');
}

// One record for each folded name of the entry that consists of ASCII letters: its length in one byte, the place's
// number in three, low byte first, and the name.
QByteArray spellingsOf(const Entry& entry, int id)
{
    QStringList names{ entry.name };
    if (entry.population >= largeTown || entry.kind == Kind::landmark)
        names += entry.alternates;
    QByteArray records;
    for (const auto& name : names) {
        const auto bytes = foldPlaceName(name).toUtf8().left(255);
        if (entry.kind == Kind::airport
            || std::any_of(bytes.begin(), bytes.end(), [](char c) { return quint8(c) > 0x7F; }))
            continue;
        records.append(char(bytes.size()));
        for (const auto shift : { 0, 8, 16 })
            records.append(char((id >> shift) & 0xFF));
        records += bytes;
    }
    return records;
}

QList<int> byRank(const QList<Entry>& entries)
{
    QList<int> order(entries.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return entries[a].rank > entries[b].rank; });
    return order;
}

void writePlaces(Writer& writer, const Gazetteer& gazetteer)
{
    auto place = writer.prepare(u"INSERT INTO place VALUES(?,?,?,?,?,?,?,?,?,?,?,?)"_s);
    auto search = writer.prepare(u"INSERT INTO place_text(rowid, name, alternates, context) VALUES(?,?,?,?)"_s);
    QByteArray spellings;
    int id = 0;
    for (const int index : byRank(gazetteer.entries)) {
        const auto& entry = gazetteer.entries[index];
        QStringList alternates;
        for (const auto& alternate : entry.alternates)
            alternates << searchedName(alternate);
        Writer::insert(place,
            { ++id, int(entry.kind), entry.name, entry.alternates.join(u'\n'), entry.town, entry.state, entry.country,
                inMillionths(entry.point.latitude), inMillionths(entry.point.longitude), entry.population,
                int(std::lround(entry.rank * 1000)), cellOf(entry.point) });
        Writer::insert(search, { id, searchedName(entry.name), alternates.join(u' '), contextOf(entry, gazetteer) });
        spellings += spellingsOf(entry, id);
    }
    auto spelling = writer.prepare(u"INSERT INTO spelling VALUES(1, ?)"_s);
    Writer::insert(spelling, { spellings });
}

void writeAreas(Writer& writer, const Gazetteer& gazetteer, const StateRaster& raster)
{
    auto country = writer.prepare(u"INSERT INTO country VALUES(?,?,?,?)"_s);
    for (int i = 0; i < gazetteer.countries.size(); ++i)
        Writer::insert(
            country, { i, gazetteer.countries[i].code, gazetteer.countries[i].name, gazetteer.countries[i].words });
    auto state = writer.prepare(u"INSERT INTO state VALUES(?,?,?)"_s);
    for (int i = 0; i < gazetteer.states.size(); ++i)
        Writer::insert(state, { i, gazetteer.states[i].name, gazetteer.states[i].words() });
    auto area = writer.prepare(u"INSERT INTO area VALUES(?,?,?)"_s);
    for (int i = 0; i < raster.areas().size(); ++i)
        Writer::insert(area, { i, raster.areas()[i].country, raster.areas()[i].state });
    auto land = writer.prepare(u"INSERT INTO land VALUES(?,?)"_s);
    for (int row = 0; row < StateRaster::rows; ++row) {
        if (const auto runs = raster.runsOfRow(row); !runs.isEmpty())
            Writer::insert(land, { row, runs });
    }
}

}  // namespace

void writePlaceFile(const QString& path, const Gazetteer& gazetteer, const StateRaster& raster)
{
    const auto connection = u"places"_s;
    const auto unfinished = path + u".part"_s;
    QFile::remove(unfinished);
    {
        auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(unfinished);
        if (!database.open())
            throw BuildError(unfinished, database.lastError().text());
        Writer writer(database);
        writer.run(schema + QStringList{ u"BEGIN"_s });
        writeAreas(writer, gazetteer, raster);
        writePlaces(writer, gazetteer);
        writer.run(finish);
    }
    QSqlDatabase::removeDatabase(connection);
    QFile::remove(path);
    if (!QFile::rename(unfinished, path))
        throw BuildError(path, u"could not be replaced"_s);
}

}  // namespace Quorbel::Places
