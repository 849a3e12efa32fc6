#include "tests/app/ModelFixture.h"

#include <QFileInfo>
#include <QTest>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

ModelFixture::ModelFixture()
    : ModelFixture(MetadataService{ realTool() })
{
}

ModelFixture::ModelFixture(const std::optional<MetadataService>& service)
{
    services.service = service;
    services.preferences = std::make_shared<QSettings>(settings.filePath(u"settings.ini"_s), QSettings::IniFormat);
    model = std::make_unique<AppModel>(services);
}

void ModelFixture::addTitled(const QStringList& names) const
{
    QStringList arguments{ u"-overwrite_original"_s, u"-XMP-dc:Title<$FileName"_s };
    for (const QString& name : names)
        arguments.append(folder.add(name).toLocalFile());
    exiftool(arguments);
}

bool ModelFixture::open()
{
    return load({ folderURL() });
}

bool ModelFixture::load(const QList<QUrl>& urls)
{
    model->load(urls);
    return waitUntilIdle();
}

bool ModelFixture::waitUntilIdle()
{
    return QTest::qWaitFor([this] { return !model->isWorking(); }, 30000);
}

void ModelFixture::click(const QString& name, bool shift, bool command)
{
    model->tap(url(name), shift, command);
}

QStringList ModelFixture::visible() const
{
    QStringList names;
    for (const ImageRecord& record : model->visibleRecords())
        names.append(record.fileName);
    return names;
}

QStringList ModelFixture::selected() const
{
    QStringList names;
    for (const QUrl& url : model->selection())
        names.append(url.fileName());
    names.sort();
    return names;
}

QString ModelFixture::primary() const
{
    return model->primary() ? model->primary()->fileName() : QString();
}

QJsonValue ModelFixture::onDisk(const QString& name, const QString& tag) const
{
    return exiftoolValues(url(name)).value(tag);
}

void ModelFixture::relaunch()
{
    model.reset();
    services.preferences->sync();
    services.preferences = std::make_shared<QSettings>(services.preferences->fileName(), QSettings::IniFormat);
    model = std::make_unique<AppModel>(services);
}

}  // namespace Quorbel::Test
