// The application model over 100,000 photos, against std::sort over as many precomputed sort keys in the same run.
// Times are the main thread's CPU time, so that other programs on the machine weigh less; medians of many.
#include "app/model/AppModel.h"
#include "bench/ManyPhotos.h"
#include "bench/Measure.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <random>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = ManyPhotos::count;
constexpr int selectedCount = 10000;

template <typename Work>
double median(int times, Work work)
{
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
        const double begin = cpuMilliseconds();
        work(i);
        taken.push_back(cpuMilliseconds() - begin);
    }
    std::sort(taken.begin(), taken.end());
    return taken[taken.size() / 2];
}

double sortBaseline(const QList<ImageRecord>& records)
{
    std::vector<QCollatorSortKey> keys;
    for (const ImageRecord& record : records)
        keys.push_back(Text::naturalSortKey(record.fileName));
    std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
    std::vector<double> taken;
    for (int i = 0; i < 11; ++i) {
        std::vector<QCollatorSortKey> copy = keys;
        const double begin = cpuMilliseconds();
        std::sort(copy.begin(), copy.end());
        taken.push_back(cpuMilliseconds() - begin);
    }
    std::sort(taken.begin(), taken.end());
    return taken[taken.size() / 2];
}

void report(const char* what, double taken, double baseline, double target)
{
    std::printf("%-44s %8.3f ms  %6.3f x sort", what, taken, taken / baseline);
    if (target > 0)
        std::printf("  (at most %.2f)%s", target, taken / baseline > target ? "  MISSED" : "");
    std::printf("\n");
}

void click(AppModel& model, int row, bool shift = false, bool command = false)
{
    model.tap(model.records().at(model.visibleRows().at(row)).url, shift, command);
}

void readAllShared(const AppModel& model)
{
    for (const FieldSpec& field : FieldSchema::all())
        (void)model.sharedValue(field.id);
}

void measure(AppModel& model)
{
    const double sort = sortBaseline(model.records());
    std::printf("%-44s %8.3f ms\n", "std::sort of 100,000 precomputed keys", sort);
    const QStringList typed{ u"i"_s, u"im"_s, u"img"_s, u"img_"_s, u"img_7"_s, u"img_77"_s, u"9"_s, u"99"_s, u"x"_s,
        {} };
    report("one search keystroke", median(100, [&](int i) { model.setSearch(typed.at(i % typed.size())); }), sort, 0.5);
    model.setSearch({});
    const QList<RecordSortOrder> orders = allCases<RecordSortOrder>();
    report("a change of sort order", median(40, [&](int i) { model.setSortOrder(orders.at((i + 1) % orders.size())); }),
        sort, 2);
    model.setSortOrder(RecordSortOrder::nameAsc);
    report("a click", median(200, [&](int i) { click(model, i * 7919 % photoCount); }), sort, 0.05);
    report("a shift-click over 100 photos",
        median(200,
            [&](int i) {
                click(model, i * 7919 % (photoCount - 100));
                click(model, i * 7919 % (photoCount - 100) + 100, true);
            }),
        sort, 0);
    click(model, 0);
    click(model, selectedCount - 1, true);
    std::vector<double> shared;
    for (int i = 0; i < 31; ++i) {
        click(model, 20000 + i, false, true);
        shared.push_back(median(1, [&](int) { readAllShared(model); }));
    }
    std::sort(shared.begin(), shared.end());
    report("sharedValue of 31 fields, 10,000 photos", shared[shared.size() / 2], sort, 0.5);
    report("a command-click with 10,000 selected", median(31, [&](int i) { click(model, 30000 + i, false, true); }),
        sort, 0);
    report("select all 100,000",
        median(5,
            [&](int) {
                model.selectAllPhotos();
                click(model, 5);
            }),
        sort, 0);
    model.selectAllPhotos();
    report("sharedValue of 31 fields, 100,000 photos", median(1, [&](int) { readAllShared(model); }), sort, 0);
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const ManyPhotos photos;
    AppModel model(photos.services());
    QEventLoop loop;
    QObject::connect(&model, &AppModel::isWorkingChanged, &loop, [&] {
        if (!model.isWorking())
            loop.quit();
    });
    const double begin = cpuMilliseconds();
    model.load({ photos.folder() });
    std::printf("%-44s %8.3f ms\n", "main thread: begin of a load", cpuMilliseconds() - begin);
    loop.exec();
    if (model.records().size() != photoCount)
        qFatal("%s", qPrintable(model.errorMessage().value_or(u"not all photos were read"_s)));
    measure(model);
    return 0;
}
