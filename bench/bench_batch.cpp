// Everything that is done to many photos at once, through the whole window over real photos and the real ExifTool: how
// long the main thread pauses, and how long it takes. Usage: bench_batch [PHOTOS]; 5,000 when none are said.
#include "app/model/library/filter/Filtering.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "bench/ManySteps.h"
#include "bench/PauseWatch.h"
#include "bench/PhotoFolders.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Quorbel;
using namespace Quorbel::Bench;

namespace {

constexpr int defaultCount = 5000;

// Copies, since they are written to.
void copyPhotos(const PhotoFolders& folders, int count, const QString& to)
{
    for (const QString& path : PhotoFolders::paths(folders.folder(count), count))
        if (!QFile::copy(path, to + u'/' + path.section(u'/', -1)))
            qFatal("cannot copy %s", qPrintable(path));
}

class Day final : ManySteps {
public:
    explicit Day(int count)
        : m_count(count)
    {
        copyPhotos(m_folders, count, m_folder.path());
    }

    void run()
    {
        open(m_count);
        selectAll(m_count);
        words();
        filters();
        renames();
        shifts();
    }

private:
    void words()
    {
        step(
            "a letter in a field of all", [this] { m_model.setBatch(u"headline"_s, u"F"_s); }, [] { return true; });
        step(
            "a keyword for all", [this] { m_model.addBatchListItem(u"keywords"_s, u"final"_s); }, [] { return true; });
        step(
            "the keywords that they hold", [] {}, [this] { return !m_model.selectedKeywords().isEmpty(); });
        const QString keyword = m_model.selectedKeywords().constFirst().keyword;
        step(
            "one of them taken away", [&] { m_model.takeBatchItemAway(u"keywords"_s, keyword); }, [] { return true; });
        fillTemplate();
        save("save: own titles, a keyword more, one less");
        undoSave();
        FieldPasting& pasting = m_model.pasting();
        step(
            "copy", [&] { pasting.copy(); }, [&] { return pasting.canPaste(); });
        step(
            "paste: what would be replaced", [&] { pasting.ask(); },
            [&] {
                const auto rows = pasting.rows();
                return !rows.isEmpty()
                    && std::none_of(rows.begin(), rows.end(), [](const auto& row) { return row.note.isEmpty(); });
            });
        step(
            "paste", [&] { pasting.paste(); }, [&] { return !pasting.isOpen(); });
        save("save: the same for all");
        undoSave();
    }

    void fillTemplate()
    {
        Templates& templates = m_model.templates();
        Template value{ .name = u"Bench"_s };
        value.fields = { { .key = u"title"_s, .text = u"%Filename%, %Counter%"_s },
            { .key = u"copyright"_s, .text = u"© %Date:yyyy% %Creator|Somebody%"_s } };
        int id = 0;
        step(
            "a template", [&] { id = templates.store().add(value); }, [&] { return id > 0; });
        step(
            "a template's own texts for each", [&] { templates.apply(id); },
            [&] { return templates.pending() == 0 && m_model.batchInclude().contains(u"title"_s); });
    }

    void filters()
    {
        Filtering& filtering = m_model.filtering();
        step(
            "filter: no description", [&] { filtering.setOn(PhotoTrait::noDescription, true); },
            [&] { return filtering.isOn(PhotoTrait::noDescription); });
        step(
            "filter: a text in any field", [&] { filtering.setText(u"zzz"_s); },
            [&] { return filtering.filter().isLimiting() && isIdle() && m_model.visibleRows().isEmpty(); });
        step(
            "no filter", [&] { filtering.clear(); }, [&] { return m_model.visibleRows().size() == m_count; });
        selectAll(m_count);
    }

    void renames()
    {
        PhotosRenaming& renaming = m_model.renaming();
        step(
            "new names: the sheet", [&] { renaming.open(); }, [&] { return renaming.plan() && renaming.isCurrent(); });
        step(
            "new names: another pattern", [&] { renaming.pattern.set(u"%Date%_FINAL_%Counter%"_s); },
            [&] { return renaming.isCurrent(); });
        step(
            "new names", [&] { renaming.rename(); }, [&] { return !renaming.isOpen() && !renaming.isRunning(); });
        step(
            "undo of that", [&] { renaming.undo(); }, [&] { return !renaming.isRunning() && isIdle(); });
    }

    void shifts()
    {
        TimeShifting& shifting = m_model.timeShifting();
        step(
            "shift: the sheet", [&] { shifting.request(); }, [&] { return shifting.isOpen(); });
        step(
            "shift: an amount", [&] { shifting.setAmount({ .hours = u"1"_s, .minutes = u"2"_s, .seconds = u"30"_s }); },
            [&] { return shifting.canShift(); });
        step(
            "shift", [&] { shifting.shift(); }, [&] { return !shifting.isOpen() && isIdle(); });
        undoSave();
    }

    int m_count;
    PhotoFolders m_folders;
};

}  // namespace

int main(int argc, char* argv[])
{
    const PauseWatch application(argc, argv);
    const int asked = QApplication::arguments().value(1).toInt();
    Day(asked > 0 ? asked : defaultCount).run();
    return 0;
}
