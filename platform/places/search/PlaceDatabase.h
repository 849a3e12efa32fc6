// The file places.db: questions put to it, and rows that come back. Decides nothing.
// Thread: the one that made it. Made by quorbel-build-places (tools/places), which says what the tables hold.
#pragma once

#include "platform/places/search/PlaceProvider.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace Quorbel {

/// Its number is stored in the file.
enum class PlaceKind { town = 0, airport = 1, landmark = 2 };

struct PlaceRow {
    int id = 0;  ///< the smaller, the likelier
    PlaceKind kind = PlaceKind::town;
    QString name{};
    QString alternates{};  ///< one a line
    QString town{};  ///< of an airport or landmark
    int state = -1;
    int country = -1;
    GeoPoint point{};
    qint64 population = 0;
    double rank = 0;
};

struct PlaceCountry {
    QString code{};  ///< ISO alpha-2
    QString name{};  ///< English
    QString words{};  ///< folded: its names in several languages and its codes
};

struct PlaceState {
    QString name{};
    QString words{};  ///< folded: its name and codes
};

class PlaceDatabase {
public:
    /// Opens the file for reading; isOpen() says whether it is there and of the right kind.
    explicit PlaceDatabase(const QString& path);
    ~PlaceDatabase();
    Q_DISABLE_COPY_MOVE(PlaceDatabase)

    bool isOpen() const { return m_isOpen; }

    /// The first rows, by id, that the full-text expression finds. Columns: name, alternates, context.
    QList<PlaceRow> matching(const QString& expression, int limit);
    std::optional<PlaceRow> place(int id);
    /// Towns in the cells that a square around the point touches, without their names in other languages.
    QList<PlaceRow> townsAround(const GeoPoint& point, double kilometers);

    const QList<PlaceCountry>& countries() const { return m_countries; }
    const QList<PlaceState>& states() const { return m_states; }

    struct Area {
        int country = -1;
        int state = -1;
    };
    /// What the land at the point belongs to; nothing at sea.
    std::optional<Area> areaAt(const GeoPoint& point);

    /// Calls visit(id, folded name) for the names of towns and landmarks in Latin letters, the likeliest first, until
    /// it answers false.
    template <typename Visit>
    void visitSpellings(Visit visit)
    {
        const QByteArrayView records = spellings();
        for (qsizetype at = 0; at + spellingHeader <= records.size();) {
            const auto byte = [&](qsizetype i) { return int(quint8(records[at + i])); };
            const auto size = std::min<qsizetype>(byte(0), records.size() - at - spellingHeader);
            if (!visit(byte(1) | (byte(2) << 8) | (byte(3) << 16), records.sliced(at + spellingHeader, size)))
                return;
            at += spellingHeader + size;
        }
    }

private:
    static constexpr qsizetype spellingHeader = 4;

    void readAreas();
    const QByteArray& spellings();
    QByteArray landRow(int row);

    QString m_connection;
    bool m_isOpen = false;
    QList<PlaceCountry> m_countries{};
    QList<PlaceState> m_states{};
    QList<Area> m_areas{};
    QByteArray m_spellings{};
    std::optional<QSqlQuery> m_matching{};
    std::optional<QSqlQuery> m_place{};
    std::optional<QSqlQuery> m_towns{};
    std::optional<QSqlQuery> m_land{};
};

/// Along the earth's surface.
double kilometersBetween(const GeoPoint& a, const GeoPoint& b);

}  // namespace Quorbel
