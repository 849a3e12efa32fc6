#include "app/model/SelfTest.h"

#include "core/MetadataService.h"
#include "core/schema/FieldID.h"
#include "core/schema/ImageTypes.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Quorbel::SelfTest {

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { passed = 0, noTool = 2, noImages = 3, notReadBack = 4, toolFailed = 5 };

void say(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
}

int fail(ExitStatus status, const QString& reason)
{
    say(u"SELFTEST FAIL: "_s + reason);
    return status;
}

QString printedList(const QStringList& items)
{
    QStringList quoted;
    for (QString item : items) {
        item.replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\""));
        quoted.append(u'"' + item + u'"');
    }
    return u'[' + quoted.join(QLatin1String(", ")) + u']';
}

// The photos of the folder by code-point order of their names; of anything else, the thing itself.
// A sub-folder is never one of them, whatever its name: the tool would write to every file inside. Nor is a pipe:
// the tool would wait for it.
QList<QUrl> filesToTest(const QString& path)
{
    const QFileInfo given(path);
    if (!given.isDir())
        return { QUrl::fromLocalFile(given.absoluteFilePath()) };
    auto entries =
        QDir(given.absoluteFilePath()).entryInfoList(QDir::Files | QDir::System | QDir::Hidden, QDir::NoSort);
    // The bytes of UTF-8 sort as the code points do.
    std::sort(entries.begin(), entries.end(),
        [](const QFileInfo& a, const QFileInfo& b) { return a.fileName().toUtf8() < b.fileName().toUtf8(); });
    QList<QUrl> photos;
    for (const auto& entry : entries) {
        const QUrl url = QUrl::fromLocalFile(entry.absoluteFilePath());
        if (ImageTypes::isImage(url) && (entry.isFile() || !entry.exists()))
            photos.append(url);
    }
    return photos;
}

QString describe(const ImageRecord& record)
{
    QStringList labels;
    for (const auto& row : record.camera)
        labels.append(row.label);
    return u"  first: "_s + record.fileName + u" ["_s + record.detailLine() + u"] title="_s
        + record.values.value(FieldID::title, u"—"_s) + u" keywords="_s
        + printedList(record.lists.value(FieldID::keywords)) + u" camera="_s + printedList(labels);
}

void writeHeadline(const MetadataService& service, const QUrl& target, const QString& headline)
{
    EditPlan plan;
    plan.scalars.insert(FieldID::headline, headline);
    service.write(plan, { target }, WriteOptions{});
}

std::optional<QString> readHeadline(const MetadataService& service, const QUrl& target)
{
    const auto records = service.read({ target });
    const QString id = FieldID::headline;
    if (records.isEmpty() || !records.first().values.contains(id))
        return std::nullopt;
    return records.first().values.value(id);
}

int testFiles(const MetadataService& service, const QList<QUrl>& files)
{
    const QUrl& target = files.first();
    const auto records = service.read(files);
    say(u"SELFTEST read "_s + QString::number(records.size()) + u" record(s)"_s);
    if (!records.isEmpty())
        say(describe(records.first()));

    const QString value = u"SelfTest-"_s + QString::number(QDateTime::currentSecsSinceEpoch());
    writeHeadline(service, target, value);
    const auto got = readHeadline(service, target);
    if (got != value)
        return fail(notReadBack, u"write not read back (got "_s + got.value_or(u"nil"_s) + u')');
    say(u"SELFTEST write round-trip OK (headline="_s + value + u')');
    writeHeadline(service, target, QString());
    say(u"SELFTEST PASS"_s);
    return passed;
}

int test(const QString& path)
{
    const auto service = MetadataService::locate();
    if (!service)
        return fail(noTool, u"ExifTool not located in bundle"_s);
    say(u"SELFTEST exiftool: "_s + service->toolURL().toLocalFile());
    const auto files = filesToTest(path);
    if (files.isEmpty())
        return fail(noImages, u"no images"_s);
    try {
        return testFiles(*service, files);
    } catch (const Error& error) {
        return fail(toolFailed, error.description());
    }
}

}  // namespace

void run(const QString& path)
{
    std::exit(test(path));
}

}  // namespace Quorbel::SelfTest
