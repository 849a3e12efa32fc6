// The program without its window, as a process that a test can kill: opens a folder, edits every photo in it, says
// "saving", saves, and says what the user would see then.
// Arguments: the folder of photos, the folder of journal and preferences, the title; "--backup" keeps originals,
// "--beside" leaves raw photos alone.
#include "tests/app/model/saving/SaveFaults.h"

#include <QCoreApplication>
#include <QTest>

#include <cstdio>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int longestWait = 60'000;  // ms

bool waitUntilIdle(const AppModel& model)
{
    return QTest::qWaitFor([&model] { return !model.isWorking(); }, longestWait);
}

void say(const QByteArray& line)
{
    std::fputs(line.constData(), stdout);
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4)
        return 2;
    const QString& state = arguments.at(2);
    AppModelServices services;
    services.service = MetadataService{ startedTool() };
    services.preferences = std::make_shared<QSettings>(state + u"/settings.ini"_s, QSettings::IniFormat);
    services.journalPath = state + u"/undo"_s;
    AppModel model(services);
    model.preferences().backupOriginals.set(arguments.contains(u"--backup"_s));
    model.preferences().rawBeside.set(arguments.contains(u"--beside"_s));
    model.load({ QUrl::fromLocalFile(arguments.at(1)) });
    if (!waitUntilIdle(model) || model.records().isEmpty())
        return 3;
    editAll(model, arguments.at(3));
    model.requestSave();
    say("saving\n");
    if (!waitUntilIdle(model))
        return 4;
    say(Aftermath::of(model).toLine());
    return 0;
}
