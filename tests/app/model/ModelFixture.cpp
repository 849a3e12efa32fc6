#include "tests/app/model/ModelFixture.h"

#include <QFileInfo>
#include <QMetaMethod>
#include <QTest>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

GatedTool::GatedTool()
{
    QByteArray script = R"perl(#!/usr/bin/perl
my ($dir) = $0 =~ m{^(.*)/};
my $text = '';
if (open my $f, '<', "$dir/shut") { local $/; $text = <$f> // '' }
my @missing = grep { my $wanted = $_; not grep { index($_, $wanted) >= 0 } @ARGV } split /\n/, $text;
if (not @missing and -e "$dir/shut") {
    open my $f, '>', "$dir/waits";
    close $f;
    select undef, undef, undef, 0.005 while -e "$dir/shut";
}
exec TOOL, @ARGV;
)perl";
    script.replace("TOOL", toolForPerl());
    writeFile(m_directory.filePath(u"exiftool"_s), script);
}

MetadataService GatedTool::service() const
{
    return { { QUrl::fromLocalFile(m_directory.filePath(u"exiftool"_s)), realTool().perlURL } };
}

void GatedTool::shut(const QByteArray& text) const
{
    writeFile(m_directory.filePath(u"shut"_s), text);
}

void GatedTool::release() const
{
    QFile::remove(m_directory.filePath(u"shut"_s));
    QFile::remove(m_directory.filePath(u"waits"_s));
}

bool GatedTool::waitForRun() const
{
    return QTest::qWaitFor([this] { return QFile::exists(m_directory.filePath(u"waits"_s)); }, 30000);
}

Announcements::Announcements(AppModel& model)
{
    const QMetaObject& meta = AppModel::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        m_spies.emplace_back(QString::fromLatin1(method.name()), std::make_unique<QSignalSpy>(&model, method));
    }
}

QMap<QString, int> Announcements::counts() const
{
    QMap<QString, int> counts;
    for (const auto& [name, spy] : m_spies)
        if (spy->count() > 0)
            counts.insert(name, int(spy->count()));
    return counts;
}

QStringList jpgs(const QString& letters)
{
    QStringList names;
    for (const QChar letter : letters)
        names.append(letter + u".jpg"_s);
    return names;
}

ModelFixture::ModelFixture()
    : ModelFixture(MetadataService{ realTool() })
{
}

ModelFixture::ModelFixture(const std::optional<MetadataService>& service)
{
    services.service = service;
    services.detailsDelay = std::chrono::hours(1);
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

void ModelFixture::lookAtDetails(decltype(AppModelServices::details) details)
{
    services.details = std::move(details);
    services.detailsDelay = std::chrono::milliseconds(1);
    relaunch();
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

void ModelFixture::answerSave(const QString& answer)
{
    if (answer == u"save")
        model->confirmSaveDialog();
    else if (answer == u"discard")
        model->discardSaveDialog();
    else if (answer == u"cancel")
        model->cancelSaveDialog();
}

void ModelFixture::select(const QString& letters)
{
    for (const QString& name : jpgs(letters))
        click(name, false, name != jpgs(letters).constFirst());
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
