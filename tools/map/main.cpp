// quorbel-build-map: turns downloaded shorelines, borders and towns into the files that the map is drawn from. Runs
// while building.
// Usage: quorbel-build-map shores|rivers|borders INPUT OUTPUT, quorbel-build-map towns CITIES LANDMARKS OUTPUT
#include "tools/map/Borders.h"
#include "tools/map/Shoreline.h"
#include "tools/map/Towns.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Quorbel::MapBuild;

namespace {

bool build(const QStringList& words)
{
    const auto isCall = [&](const char* kind, qsizetype count) {
        return words.size() == count && words[1] == QLatin1String(kind);
    };
    if (isCall("shores", 4))
        readShores(words[2]).write(words[3]);
    else if (isCall("rivers", 4))
        readRivers(words[2]).write(words[3]);
    else if (isCall("borders", 4))
        readBorders(words[2]).write(words[3]);
    else if (isCall("towns", 5))
        readTowns(words[2], words[3]).write(words[4]);
    else
        return false;
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        if (build(QCoreApplication::arguments()))
            return 0;
        std::fputs("Usage: quorbel-build-map shores|rivers|borders INPUT OUTPUT\n"
                   "       quorbel-build-map towns CITIES LANDMARKS OUTPUT\n",
            stderr);
    } catch (const BuildError& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
