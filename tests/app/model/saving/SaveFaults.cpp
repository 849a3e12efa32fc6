#include "tests/app/model/saving/SaveFaults.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <csignal>
#include <grp.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView leftoverSuffix("_exiftool_tmp");
constexpr QLatin1StringView backupSuffix("_original");

void fail(const QString& what)
{
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}

// The bytes of the photos, made once: the tool takes longer than a copy.
const QMap<QString, QByteArray>& titledPhotos()
{
    static const QMap<QString, QByteArray> photos = [] {
        const PhotoFolder folder;
        QStringList arguments{ u"-overwrite_original"_s, u"-XMP-dc:Title<$FileName"_s };
        for (const QString& name : StruckPhotos::names())
            arguments.append(folder.add(name).toLocalFile());
        exiftool(arguments);
        QMap<QString, QByteArray> made;
        for (const QString& name : StruckPhotos::names())
            made.insert(name, readFile(folder.path(name)));
        return made;
    }();
    return photos;
}

// All tags of the files, by path, from one run.
QMap<QString, QJsonObject> tagsOf(const QStringList& paths)
{
    QMap<QString, QJsonObject> tags;
    if (paths.isEmpty())
        return tags;
    const QJsonArray objects = QJsonDocument::fromJson(exiftool(QStringList{ u"-json"_s, u"-G0"_s } + paths)).array();
    for (const QJsonValue& object : objects)
        tags.insert(object[u"SourceFile"_s].toString(), object.toObject());
    return tags;
}

}  // namespace

QRandomGenerator seededMoments()
{
    bool isGiven = false;
    quint32 seed = qEnvironmentVariable("QUORBEL_FAULT_SEED").toUInt(&isGiven);
    if (!isGiven)
        seed = QRandomGenerator::global()->generate();
    qInfo("QUORBEL_FAULT_SEED=%u", seed);
    return QRandomGenerator(seed);
}

const QStringList& StruckPhotos::names()
{
    static const QStringList names{ u"a.jpg"_s, u"b.png"_s, u"c.jpg"_s, u"d.png"_s, u"e.jpg"_s };
    return names;
}

StruckPhotos::StruckPhotos(const QString& folder, uid_t owner)
    : m_folder(folder)
    , m_before(titledPhotos())
{
    for (auto photo = m_before.cbegin(); photo != m_before.cend(); ++photo)
        writeFile(path(photo.key()), *photo);
    if (owner == 0)
        return;
    bool isGiven = chown(qPrintable(m_folder), owner, owner) == 0;
    for (const QString& name : names())
        isGiven = isGiven && chown(qPrintable(path(name)), owner, owner) == 0;
    if (!isGiven)
        qFatal("the photos could not be given away");
}

QList<QUrl> StruckPhotos::urls() const
{
    QList<QUrl> urls;
    for (const QString& name : names())
        urls.append(QUrl::fromLocalFile(path(name)));
    return urls;
}

QStringList StruckPhotos::unsaved(const QString& title) const
{
    QStringList unsaved;
    QStringList changed;
    for (const QString& name : names()) {
        if (!QFile::exists(path(name)))
            fail(u"gone: "_s + name);
        else if (readFile(path(name)) == m_before.value(name))
            unsaved.append(name);
        else
            changed.append(path(name));
    }
    const auto tags = tagsOf(changed);
    for (const QString& file : std::as_const(changed)) {
        const QString name = QFileInfo(file).fileName();
        requireWhole(name, tags.value(file));
        if (tags.value(file).value(u"XMP:Title"_s).toString() != title)
            unsaved.append(name);
    }
    requireKnownNeighbors();
    unsaved.sort();
    return unsaved;
}

void StruckPhotos::requireWhole(const QString& name, const QJsonObject& tags) const
{
    QImage before;
    before.loadFromData(m_before.value(name));
    if (tags.isEmpty() || tags.contains(u"ExifTool:Error"_s) || tags.contains(u"ExifTool:Warning"_s)
        || !tags.contains(u"XMP:Title"_s) || before.isNull() || QImage(path(name)) != before)
        fail(u"damaged: "_s + name);
}

void StruckPhotos::requireKnownNeighbors() const
{
    const QStringList files = QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& file : files) {
        const bool isBackup = file.endsWith(backupSuffix);
        const QString name = isBackup ? file.chopped(backupSuffix.size()) : file;
        if (isBackup && m_before.contains(name) && readFile(path(file)) != m_before.value(name))
            fail(u"a backup that is not the original: "_s + file);
        if (!m_before.contains(name) && !leftovers().contains(file))
            fail(u"unknown file: "_s + file);
    }
}

QStringList StruckPhotos::leftovers() const
{
    return QDir(m_folder).entryList({ u'*' + leftoverSuffix }, QDir::Files) + secondNames();
}

QStringList StruckPhotos::secondNames() const
{
    return QDir(m_folder).entryList({ u".quorbel-*.before"_s }, QDir::Files | QDir::Dirs | QDir::Hidden);
}

namespace {

// Made once, as above: TIFFs under raw names, and sidecars with what only other programs know.
const QMap<QString, QByteArray>& rawFiles()
{
    static const QMap<QString, QByteArray> files = [] {
        const PhotoFolder folder;
        QMap<QString, QByteArray> made;
        const QString tiff = folder.add(u"own.tif"_s).toLocalFile();
        exiftool({ u"-overwrite_original"_s, u"-IPTC:Keywords=own"_s, tiff });
        for (const QString& name : StruckRaws::names())
            made.insert(name, readFile(tiff));
        const QString sidecar = folder.path(u"sidecar.xmp"_s);
        exiftool({ u"-XMP-crs:Exposure2012=+1.50"_s, u"-XMP-xmp:Rating=3"_s, u"-XMP-dc:Title=theirs"_s, sidecar });
        made.insert(u"b.xmp"_s, readFile(sidecar));
        made.insert(u"d.NEF.xmp"_s, readFile(sidecar));
        return made;
    }();
    return files;
}

QString sidecarOf(const QString& raw)
{
    return raw == u"d.NEF" ? u"d.NEF.xmp"_s : raw.left(1) + u".xmp"_s;
}

}  // namespace

const QStringList& StruckRaws::names()
{
    static const QStringList names{ u"a.NEF"_s, u"b.NEF"_s, u"c.NEF"_s, u"d.NEF"_s, u"e.NEF"_s };
    return names;
}

StruckRaws::StruckRaws(const QString& folder, uid_t owner)
    : m_folder(folder)
    , m_before(rawFiles())
{
    bool isGiven = owner == 0 || chown(qPrintable(m_folder), owner, owner) == 0;
    for (auto file = m_before.cbegin(); file != m_before.cend(); ++file) {
        writeFile(path(file.key()), *file);
        isGiven = isGiven && (owner == 0 || chown(qPrintable(path(file.key())), owner, owner) == 0);
    }
    if (!isGiven)
        qFatal("the photos could not be given away");
}

QStringList StruckRaws::unsaved(const QString& title) const
{
    QStringList unsaved;
    QStringList changed;
    QStringList known = leftovers() + names();
    for (const QString& name : names()) {
        const QString sidecar = sidecarOf(name);
        known.append(sidecar);
        if (readFile(path(name)) != m_before.value(name))
            fail(u"touched: "_s + name);
        if (m_before.contains(sidecar) && !QFile::exists(path(sidecar)))
            fail(u"gone: "_s + sidecar);
        else if (!QFile::exists(path(sidecar)) || readFile(path(sidecar)) == m_before.value(sidecar))
            unsaved.append(name);
        else
            changed.append(path(sidecar));
    }
    const auto tags = tagsOf(changed);
    for (const QString& file : std::as_const(changed)) {
        const QString name = QFileInfo(file).fileName().left(1) + u".NEF"_s;
        requireWhole(QFileInfo(file).fileName(), tags.value(file));
        if (tags.value(file).value(u"XMP:Title"_s).toString() != title)
            unsaved.append(name);
    }
    for (const QString& file : QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        if (!known.contains(file))
            fail(u"unknown file: "_s + file);
    unsaved.sort();
    return unsaved;
}

void StruckRaws::requireWhole(const QString& name, const QJsonObject& tags) const
{
    const bool keepsTheirs =
        !m_before.contains(name) || (tags.contains(u"XMP:Exposure2012"_s) && tags.value(u"XMP:Rating"_s).toInt() == 3);
    if (tags.contains(u"ExifTool:Error"_s) || tags.contains(u"ExifTool:Warning"_s) || !tags.contains(u"XMP:Title"_s)
        || !tags.contains(u"XMP:Subject"_s) || !keepsTheirs)
        fail(u"damaged: "_s + name);
}

QStringList StruckRaws::leftovers() const
{
    return QDir(m_folder).entryList({ u'*' + leftoverSuffix, u".quorbel-*"_s }, QDir::AllEntries | QDir::Hidden);
}

Aftermath Aftermath::of(const AppModel& model)
{
    Aftermath after{ .banner = model.errorMessage().value_or(QString()),
        .selected = {},
        .title = (model.isBatch() ? model.batchValues() : model.draftValues()).value(u"title"_s),
        .keywords = (model.isBatch() ? model.batchLists() : model.draftLists()).value(u"keywords"_s),
        .unsavedCount = model.unsavedCount() };
    for (const QUrl& url : model.selection())
        after.selected.append(url.fileName());
    return after;
}

QByteArray Aftermath::toLine() const
{
    const QJsonObject object{ { u"banner"_s, banner }, { u"selected"_s, QJsonArray::fromStringList(selected) },
        { u"title"_s, title }, { u"keywords"_s, QJsonArray::fromStringList(keywords) },
        { u"unsaved"_s, unsavedCount } };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

Aftermath Aftermath::fromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    return { .banner = object.value(u"banner"_s).toString(),
        .selected = object.value(u"selected"_s).toVariant().toStringList(),
        .title = object.value(u"title"_s).toString(),
        .keywords = object.value(u"keywords"_s).toVariant().toStringList(),
        .unsavedCount = object.value(u"unsaved"_s).toInt() };
}

void editAll(AppModel& model, const QString& title)
{
    model.preferences().confirmMassEdit.set(false);
    model.selectAllPhotos();
    model.setBatch(u"title"_s, title);
    model.addBatchListItem(u"keywords"_s, u"sky"_s);
    model.addCustomField(u"Mood"_s, u"calm"_s);
}

void verifyNothingLost(const StruckPhotos& photos, const QString& title, const Aftermath& after)
{
    verifyNothingLost(photos.unsaved(title), title, after);
}

void verifyNothingLost(const QStringList& unsaved, const QString& title, const Aftermath& after)
{
    if (unsaved.isEmpty() || QTest::currentTestFailed())
        return;
    for (const QString& name : unsaved)
        QVERIFY2(after.selected.contains(name), qPrintable(u"not selected any more: "_s + name));
    // What stops the whole save is named alone; otherwise each photo is.
    const auto isNamed = [&after](const QString& name) { return after.banner.contains(name); };
    const bool namesEach = after.banner.contains(u" of 5 photos: "_s);
    QVERIFY2(namesEach ? std::all_of(unsaved.cbegin(), unsaved.cend(), isNamed)
                       : std::any_of(unsaved.cbegin(), unsaved.cend(), isNamed),
        qPrintable(unsaved.join(u", "_s) + u" and the banner: "_s + after.banner));
    QCOMPARE(after.title, title);
    QVERIFY(after.keywords.contains(u"sky"_s));
    QVERIFY(after.unsavedCount > 0);
}

namespace {

// Whether it is the tool that the test itself reads and writes with.
bool isOwnTool(pid_t process)
{
    QFile commandLine(u"/proc/%1/cmdline"_s.arg(process));
    return commandLine.open(QIODevice::ReadOnly) && commandLine.readAll().contains("-stay_open");
}

}  // namespace

QList<pid_t> runningTools()
{
    QList<pid_t> found;
    const QStringList threads = QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads) {
        const QByteArray list = readFile(u"/proc/self/task/%1/children"_s.arg(thread));
        for (const QByteArray& pid : list.split(' '))
            if (!pid.trimmed().isEmpty() && !isOwnTool(pid.trimmed().toInt()))
                found.append(pid.trimmed().toInt());
    }
    return found;
}

OtherProgram::OtherProgram(const Launch& launch)
{
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const QString temporary = launch.state + u"/tmp"_s;
    QDir().mkpath(temporary);
    if (launch.user != 0
        && (chown(qPrintable(launch.state), launch.user, launch.user) != 0
            || chown(qPrintable(temporary), launch.user, launch.user) != 0))
        qFatal("the state folder could not be given away");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, temporary);
    environment.insert(u"HOME"_s, launch.state);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier([user = launch.user] {
        setpgid(0, 0);
        if (user != 0 && (setgroups(0, nullptr) != 0 || setgid(user) != 0 || setuid(user) != 0))
            _exit(1);
    });
    QStringList arguments{ launch.folder, launch.state, launch.title };
    if (launch.backup)
        arguments.append(u"--backup"_s);
    if (launch.beside)
        arguments.append(u"--beside"_s);
    m_process.start(QString::fromUtf8(QUORBEL_SAVING_PROGRAM), arguments);
    m_process.waitForStarted();
    m_group = pid_t(m_process.processId());
}

OtherProgram::~OtherProgram()
{
    if (m_process.state() != QProcess::NotRunning)
        killWithItsTool();
    waitForEnd();
}

bool OtherProgram::waitForSave()
{
    while (m_process.state() != QProcess::NotRunning && !m_process.canReadLine())
        m_process.waitForReadyRead(100);
    return m_process.canReadLine() && m_process.readLine() == "saving\n";
}

void OtherProgram::pause() const
{
    ::kill(-m_group, SIGSTOP);
}

void OtherProgram::kill() const
{
    ::kill(m_group, SIGKILL);
}

void OtherProgram::killWithItsTool() const
{
    ::kill(-m_group, SIGKILL);
}

void OtherProgram::waitForEnd()
{
    m_process.waitForFinished(60'000);
    // Its own end is known; what is left of the group are tools.
    while (m_group > 0 && waitpid(-m_group, nullptr, 0) > 0) { }
}

Aftermath OtherProgram::aftermath()
{
    return Aftermath::fromLine(m_process.readLine());
}

}  // namespace Quorbel::Test
