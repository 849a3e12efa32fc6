// The walls between the floors. The link line keeps a floor from using what it may not know, but every target has the
// repository and Qt's include folder on its path, and a precompiled header brings names that no line asks for. So this
// test reads every #include of the program and every name of Qt in its code, and holds them against one table.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString tree = QString::fromUtf8(QUORBEL_TREE);
const QString qtHeaders = QString::fromUtf8(QUORBEL_QT_HEADERS);

// What the files below one folder may include. The row with the longest matching folder decides.
struct Floor {
    QString folder;
    QStringList ours;  // folders of the tree, with all below them
    QStringList modules;  // of Qt
    // Headers that are neither ours, nor Qt's, nor the C++ library's; "folder/" allows all in it.
    QStringList others{};
    bool mayReachOut = true;  // to processes and files
};

const QList<Floor>& floors()
{
    static const QList<Floor> rows{
        { u"core"_s, { u"core"_s }, { u"QtCore"_s, u"QtNetwork"_s },
            { u"dirent.h"_s, u"fcntl.h"_s, u"sys/file.h"_s, u"sys/resource.h"_s, u"sys/stat.h"_s, u"sys/xattr.h"_s,
                u"unistd.h"_s } },
        { u"platform/desktop"_s, { u"platform/desktop"_s }, { u"QtCore"_s, u"QtGui"_s, u"QtDBus"_s }, { u"xcb/"_s } },
        { u"platform/files"_s, { u"platform/files"_s }, { u"QtCore"_s },
            { u"dirent.h"_s, u"fcntl.h"_s, u"sys/inotify.h"_s, u"sys/stat.h"_s, u"sys/statfs.h"_s, u"unistd.h"_s } },
        { u"platform/images"_s, { u"platform/images"_s }, { u"QtCore"_s, u"QtGui"_s },
            { u"jerror.h"_s, u"jpeglib.h"_s, u"jxl/"_s, u"lcms2.h"_s, u"libde265/"_s, u"libheif/"_s, u"libraw/"_s,
                u"openjpeg.h"_s, u"tiffio.h"_s } },
        { u"platform/places"_s, { u"platform/places"_s, u"platform/files"_s },
            { u"QtCore"_s, u"QtGui"_s, u"QtNetwork"_s, u"QtSql"_s } },
        { u"app/model"_s, { u"app/model"_s, u"core"_s, u"platform"_s },
            { u"QtCore"_s, u"QtGui"_s, u"QtConcurrent"_s, u"QtSql"_s },
            { u"fcntl.h"_s, u"sys/resource.h"_s, u"sys/stat.h"_s, u"sys/sysmacros.h"_s, u"unistd.h"_s } },
        { u"ui/controls"_s, { u"ui/controls"_s, u"core/language"_s },
            { u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s, u"QtSvg"_s }, {}, false },
        { u"ui"_s, { u"ui"_s, u"app/model"_s, u"core"_s, u"platform"_s },
            { u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s, u"QtSvg"_s }, {}, false },
        { u"app/shell"_s, { u"app"_s, u"ui"_s, u"core"_s, u"platform"_s },
            { u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s, u"QtSvg"_s, u"QtNetwork"_s, u"QtSql"_s, u"QtConcurrent"_s,
                u"QtDBus"_s },
            { u"fontconfig/"_s } },
        { u"tools/map"_s, { u"tools/map"_s, u"platform/places/map"_s }, { u"QtCore"_s, u"QtSql"_s },
            { u"netcdf.h"_s } },
        { u"tools/places"_s, { u"tools/places"_s, u"platform/places/search"_s }, { u"QtCore"_s, u"QtSql"_s } },
        { u"tools/zones"_s, { u"tools/zones"_s, u"platform/places/zones"_s }, { u"QtCore"_s } },
        { u"tools"_s, { u"ui"_s }, { u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s, u"QtTest"_s } },
    };
    return rows;
}

// Processes and files in the modules that the views may use, by the header that declares them, and in the C++
// library. The headers of whole modules are among them: they bring all the others.
const QStringList& outside()
{
    static const QStringList headers{ u"qprocess.h"_s, u"qfile.h"_s, u"qfileinfo.h"_s, u"qfiledevice.h"_s, u"qdir.h"_s,
        u"qdiriterator.h"_s, u"qsavefile.h"_s, u"qtemporaryfile.h"_s, u"qtemporarydir.h"_s, u"qfilesystemwatcher.h"_s,
        u"qfilesystemmodel.h"_s, u"qfiledialog.h"_s, u"qstorageinfo.h"_s, u"qlockfile.h"_s, u"qlibrary.h"_s,
        u"qpluginloader.h"_s, u"qsettings.h"_s, u"qstandardpaths.h"_s, u"qdesktopservices.h"_s, u"qimagereader.h"_s,
        u"qimagewriter.h"_s, u"QtCore"_s, u"QtGui"_s, u"QtWidgets"_s, u"cstdio"_s, u"cstdlib"_s, u"csignal"_s,
        u"filesystem"_s, u"fstream"_s };
    return headers;
}

// Where a wall has a door, each with its reason. One that nothing passes any more fails the test.
struct Door {
    QString file;
    QString header;
};
const QList<Door>& doors()
{
    static const QList<Door> all{
        // The widths of the columns lie in the preferences that the model hands out; the view knows no path.
        { u"ui/window/ContentView.cpp"_s, u"QSettings"_s },
        // A handler of a signal may do no more than write into a pipe.
        { u"app/shell/TerminationSignals.cpp"_s, u"fcntl.h"_s },
        { u"app/shell/TerminationSignals.cpp"_s, u"unistd.h"_s },
    };
    return all;
}

// The header of Qt that <name> or <Module/name> means: its module, and the file that declares it ("QFile" only
// includes "qfile.h"). Both empty for a name that Qt does not have.
struct QtHeader {
    QString module;
    QString file;
};

QtHeader qtHeader(const QString& name)
{
    static const auto byName = [] {
        QHash<QString, QString> modules;
        for (QDirIterator headers(qtHeaders, QDir::Files, QDirIterator::Subdirectories); headers.hasNext();) {
            const QStringList parts = QDir(qtHeaders).relativeFilePath(headers.next()).split(u'/');
            if (parts.size() == 2)
                modules.insert(parts[1], parts[0]);
        }
        return modules;
    }();
    static QHash<QString, QtHeader> known;
    const QString bare = name.section(u'/', -1);
    const QString module = name.contains(u'/') ? name.section(u'/', 0, -2) : byName.value(bare);
    if (module.isEmpty() || !module.startsWith(u"Qt"_s))
        return {};
    if (const auto found = known.constFind(name); found != known.cend())
        return *found;
    QFile file(qtHeaders + u'/' + module + u'/' + bare);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression forward(u"^#include \"(q\\w+\\.h)\"\\s*$"_s);
    const auto match = forward.match(QString::fromUtf8(file.read(200)));
    return known[name] = { module, match.hasMatch() ? match.captured(1) : bare };
}

bool isBelow(const QString& path, const QStringList& folders)
{
    return std::ranges::any_of(folders, [&](const QString& folder) { return path.startsWith(folder + u'/'); });
}

const Floor* floorOf(const QString& file)
{
    const Floor* found = nullptr;
    for (const Floor& floor : floors()) {
        if (isBelow(file, { floor.folder }) && (!found || floor.folder.size() > found->folder.size()))
            found = &floor;
    }
    return found;
}

// The file of ours that an include means, from the root of the tree; empty when it is none.
QString ownFile(const QString& file, const QString& include)
{
    const QString beside = QDir::cleanPath(file.section(u'/', 0, -2) + u'/' + include);
    if (include.startsWith(u'.') || QFile::exists(tree + u'/' + beside))
        return beside;
    const QString path = QDir::cleanPath(include);
    return isBelow(path, { u"tests"_s, u"bench"_s }) || floorOf(path) ? path : QString();
}

// Why the file may not use that header; empty when it may.
QString wall(const QString& file, const QString& include)
{
    const Floor* floor = floorOf(file);
    if (!floor)
        return u"stands on no floor"_s;
    const QString knowsNo = floor->folder + u" knows no "_s;
    if (include.endsWith(u".moc"_s))
        return {};
    if (include.contains(u'/')) {
        if (const QString own = ownFile(file, include); !own.isEmpty()) {
            const Floor* other = floorOf(own);
            return isBelow(own, floor->ours) ? QString() : knowsNo + (other ? other->folder : own.section(u'/', 0, 0));
        }
    }
    const QtHeader qt = qtHeader(include);
    if (!qt.module.isEmpty() && !floor->modules.contains(qt.module))
        return knowsNo + qt.module;
    if (!floor->mayReachOut && (outside().contains(qt.file) || outside().contains(include)))
        return knowsNo + u"processes and files"_s;
    static const QRegularExpression standard(u"^[a-z0-9_]+$"_s);
    const bool isAllowed = !qt.module.isEmpty() || standard.match(include).hasMatch() || floor->others.contains(include)
        || floor->others.contains(include.section(u'/', 0, 0) + u'/');
    return isAllowed ? QString() : knowsNo + u'<' + include + u'>';
}

// What is included on that line, and what of Qt is named there outside comments and texts.
QStringList headersOn(QString line)
{
    static const QRegularExpression include(u"^\\s*#\\s*(?:include|include_next|import)\\s*[<\"]?([^>\"]*)"_s);
    if (const auto match = include.match(line); match.hasMatch())
        return { match.captured(1) };
    static const QRegularExpression silent(u"\"(?:[^\"\\\\]|\\\\.)*\"|//.*|^\\s*\\*.*"_s);
    static const QRegularExpression name(u"\\bQ[A-Z]\\w*"_s);
    QStringList names;
    for (const auto& match : name.globalMatch(line.remove(silent))) {
        if (!qtHeader(match.captured()).module.isEmpty())
            names += match.captured();
    }
    return names;
}

}  // namespace

class tst_Walls : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Without Qt's headers at that place every name of Qt would pass as unknown.
        QCOMPARE(qtHeader(u"QProcess"_s).file, u"qprocess.h"_s);
        QCOMPARE(qtHeader(u"QLabel"_s).module, u"QtWidgets"_s);
    }

    void oneInclude_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("include");
        QTest::addColumn<QString>("expected");
        const auto row = [](const QString& file, const QString& include, const QString& expected = {}) {
            QTest::newRow(qPrintable(file + u' ' + include)) << file << include << expected;
        };
        const QString symbols = u"ui/controls/theme/SymbolText.cpp"_s;
        row(u"core/text/Text.cpp"_s, u"app/model/library/RecordIndex.h"_s, u"core knows no app/model"_s);
        row(u"core/text/Text.cpp"_s, u"QtWidgets/QWidget"_s, u"core knows no QtWidgets"_s);
        row(symbols, u"QProcess"_s, u"ui/controls knows no processes and files"_s);
        row(symbols, u"QtNetwork/QNetworkReply"_s, u"ui/controls knows no QtNetwork"_s);
        row(symbols, u"QtSql/QSqlQuery"_s, u"ui/controls knows no QtSql"_s);

        row(u"core/text/Text.cpp"_s, u"../../platform/images/Orientation.h"_s, u"core knows no platform/images"_s);
        row(u"core/text/Text.cpp"_s, u"QImage"_s, u"core knows no QtGui"_s);
        row(u"core/tool/New.cpp"_s, u"core/text/Text.h"_s);
        row(u"core/tool/New.cpp"_s, u"qprocess.h"_s);
        row(u"platform/images/New.h"_s, u"core/text/Text.h"_s, u"platform/images knows no core"_s);
        row(u"platform/images/New.h"_s, u"QSqlDatabase"_s, u"platform/images knows no QtSql"_s);
        row(u"platform/images/New.h"_s, u"libheif/heif.h"_s);
        row(u"platform/places/New.h"_s, u"libheif/heif.h"_s, u"platform/places knows no <libheif/heif.h>"_s);
        row(u"platform/places/New.h"_s, u"QNetworkReply"_s);
        row(u"app/model/New.cpp"_s, u"ui/sidebar/SidebarModel.h"_s, u"app/model knows no ui"_s);
        row(u"app/model/New.cpp"_s, u"QLabel"_s, u"app/model knows no QtWidgets"_s);
        row(u"app/model/New.cpp"_s, u"lcms2.h"_s, u"app/model knows no <lcms2.h>"_s);
        row(u"app/model/New.cpp"_s, u"QtConcurrent"_s);
        row(u"ui/window/New.cpp"_s, u"app/shell/Menus.h"_s, u"ui knows no app/shell"_s);
        row(u"ui/window/New.cpp"_s, u"tests/support/Support.h"_s, u"ui knows no tests"_s);
        row(u"ui/window/New.cpp"_s, u"QProcessEnvironment"_s, u"ui knows no processes and files"_s);
        row(u"ui/window/New.cpp"_s, u"QtCore/qsavefile.h"_s, u"ui knows no processes and files"_s);
        row(u"ui/window/New.cpp"_s, u"fstream"_s, u"ui knows no processes and files"_s);
        row(u"ui/window/New.cpp"_s, u"unistd.h"_s, u"ui knows no <unistd.h>"_s);
        row(u"ui/window/New.cpp"_s, u"QDBusConnection"_s, u"ui knows no QtDBus"_s);
        row(u"ui/window/New.cpp"_s, u"private/qwidget_p.h"_s, u"ui knows no <private/qwidget_p.h>"_s);
        row(u"ui/window/New.cpp"_s, u"app/model/AppModel.h"_s);
        row(u"ui/window/New.cpp"_s, u"QSvgRenderer"_s);
        row(symbols, u"ui/inspector/FieldRow.h"_s, u"ui/controls knows no ui"_s);
        row(symbols, u"core/text/Text.h"_s, u"ui/controls knows no core"_s);
        row(u"tools/places/New.cpp"_s, u"core/text/Text.h"_s, u"tools/places knows no core"_s);
        row(u"app/shell/New.cpp"_s, u"QLocalServer"_s);
        row(u"app/New.cpp"_s, u"core/text/Text.h"_s, u"stands on no floor"_s);
    }
    void oneInclude()
    {
        QFETCH(QString, file);
        QFETCH(QString, include);
        QTEST(wall(file, include), "expected");
    }

    void namesOnALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("include") << u"#  include <QtSql/QSqlQuery>  // why"_s << QStringList{ u"QtSql/QSqlQuery"_s };
        QTest::newRow("macro") << u"#include HEADER"_s << QStringList{ u"HEADER"_s };
        QTest::newRow("forward") << u"class QNetworkReply;"_s << QStringList{ u"QNetworkReply"_s };
        QTest::newRow("code") << u"QFile(path).remove();  // a QDir"_s << QStringList{ u"QFile"_s };
        QTest::newRow("text") << u"f(\"a \\\" QDir\", QuorbelApp());"_s << QStringList{};
    }
    void namesOnALine()
    {
        QFETCH(QString, line);
        QTEST(headersOn(line), "expected");
    }

    void everyFile()
    {
        QStringList faults;
        QStringList passed;
        int files = 0;
        for (const QString& top : { u"core"_s, u"platform"_s, u"app"_s, u"ui"_s, u"tools"_s }) {
            QDirIterator sources(
                tree + u'/' + top, { u"*.cpp"_s, u"*.h"_s, u"*.in"_s }, QDir::Files, QDirIterator::Subdirectories);
            for (; sources.hasNext(); ++files)
                check(sources.next().mid(tree.size() + 1), faults, passed);
        }
        QVERIFY2(files > 200, qPrintable(u"only %1 files found"_s.arg(files)));
        for (const Door& door : doors()) {
            if (!passed.contains(door.file + u' ' + door.header))
                faults += u"%1 does not use %2 any more: take the door out"_s.arg(door.file, door.header);
        }
        for (const QString& fault : faults)
            qWarning().noquote() << fault;
        QCOMPARE(faults.size(), 0);
    }

private:
    static void check(const QString& path, QStringList& faults, QStringList& passed)
    {
        QFile file(tree + u'/' + path);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
        int number = 0;
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine());
            ++number;
            for (const QString& header : headersOn(line)) {
                const QString why = wall(path, header);
                const bool hasDoor = std::ranges::any_of(
                    doors(), [&](const Door& door) { return door.file == path && door.header == header; });
                if (why.isEmpty())
                    continue;
                if (hasDoor)
                    passed += path + u' ' + header;
                else
                    faults += u"%1:%2 %3 %4: %5"_s.arg(path).arg(number).arg(
                        line.contains(u'#') ? u"includes"_s : u"names"_s, header, why);
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Walls)
#include "tst_Walls.moc"
