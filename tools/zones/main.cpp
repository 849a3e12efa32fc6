// quorbel-build-zones: turns the downloaded areas of time zones into the file that positions are looked up in, and
// gives each zone the town that it is known by. Runs while building.
// Usage: quorbel-build-zones AREAS CITIES OUTPUT
#include "platform/places/zones/ZoneFormat.h"
#include "tools/zones/ZoneSource.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSaveFile>

#include <cstdio>

using namespace Quorbel;
using namespace Quorbel::ZoneBuild;
using namespace Qt::StringLiterals;

namespace {

void put16(QByteArray& bytes, quint16 number)
{
    bytes.append(char(number & 0xFFU));
    bytes.append(char(number >> 8U));
}

void put32(QByteArray& bytes, quint32 number)
{
    put16(bytes, quint16(number & 0xFFFFU));
    put16(bytes, quint16(number >> 16U));
}

// "Zurich" of "Europe/Zurich".
QByteArray plainTown(const QByteArray& zone)
{
    return zone.mid(zone.lastIndexOf('/') + 1).replace('_', ' ');
}

// By zone: the name of its town as people there write it, of towns of one name the largest's.
QHash<QByteArray, QByteArray> readTowns(const QString& path)
{
    constexpr int name = 1;
    constexpr int plainName = 2;
    constexpr int population = 14;
    constexpr int zone = 17;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(path + u": "_s + file.errorString());
    QHash<QByteArray, QByteArray> towns;
    QHash<QByteArray, qint64> largest;
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().split('\t');
        if (cells.size() <= zone || cells[plainName] != plainTown(cells[zone]))
            continue;
        const qint64 people = cells[population].toLongLong();
        if (people < largest.value(cells[zone], 0))
            continue;
        largest.insert(cells[zone], people);
        towns.insert(cells[zone], cells[name]);
    }
    return towns;
}

void write(const QString& path, const QList<QByteArray>& zones, const QHash<QByteArray, QByteArray>& towns,
    const QList<QByteArray>& rows)
{
    QByteArray names;
    for (const QByteArray& zone : zones) {
        const QByteArray town = towns.value(zone, plainTown(zone));
        names.append(char(zone.size()));
        names.append(char(town.size()));
        names += zone + town;
    }
    QByteArray bytes(ZoneFormat::magic, sizeof ZoneFormat::magic);
    put16(bytes, quint16(zones.size()));
    put16(bytes, 0);
    QHash<QByteArray, quint32> known;
    QByteArray body;
    const auto begin = quint32(ZoneFormat::headerSize + ZoneFormat::rows * int(sizeof(quint32)) + names.size());
    for (const QByteArray& row : rows) {
        if (!known.contains(row)) {
            known.insert(row, begin + quint32(body.size()));
            body += row;
        }
        put32(bytes, known.value(row));
    }
    bytes += names + body;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw BuildError(path + u": "_s + file.errorString());
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) {
        std::fputs("Usage: quorbel-build-zones AREAS CITIES OUTPUT\n", stderr);
        return 2;
    }
    try {
        ZoneSource source(words[1]);
        ZoneRows rows;
        source.drawTo(rows);
        write(words[3], source.zones(), readTowns(words[2]), rows.runs());
    } catch (const BuildError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
