// A world of a dozen places for tests, in the files that the place builder reads, and the builder run on them.
// For tests only.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Landmarks that hold in this world.
QByteArray goodLandmarks();

class PlaceWorld {
public:
    /// Writes every file except the landmarks. Two countries share the square of 40…50° N, 0…20° E: Switzerland with
    /// the state of Zurich west of 10° E, Austria with Tyrol east of it.
    PlaceWorld();

    QString folder() const { return m_directory.path(); }

    struct Run {
        int exitCode = -1;
        QByteArray errors{};
    };
    /// Runs the builder with these landmarks; its output is places.db, or another file, in the folder.
    Run build(const QByteArray& landmarks, const QString& output = u"places.db"_s) const;

private:
    QString path(const char* name) const { return m_directory.filePath(QLatin1String(name)); }
    void writeTowns() const;
    void writeNames() const;
    void writeAirports() const;
    void writeBorders() const;

    QTemporaryDir m_directory;
};

}  // namespace Quorbel::Test
