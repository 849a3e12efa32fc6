// Photos titled with their names, before a model that keeps a journal of its saves and asks for nothing.
// Thread: the test's.
#pragma once

#include "tests/app/model/ModelFixture.h"

namespace Quorbel::Test {

struct JournaledPhotos : ModelFixture {
    explicit JournaledPhotos(const QStringList& names = { u"a.jpg"_s, u"b.jpg"_s })
    {
        addTitled(names);
        beginJournal();
    }
    JournaledPhotos(const MetadataService& service, const QStringList& names)
        : ModelFixture(service)
    {
        addTitled(names);
    }
    /// Builds the model again, with a journal.
    void beginJournal()
    {
        services.journalPath = settings.filePath(u"state/undo"_s);
        relaunch();
        model->preferences().saveDontAsk.set(true);
        model->preferences().confirmMassEdit.set(false);
        model->preferences().backupOriginals.set(false);
    }
    bool save()
    {
        model->requestSave();
        return waitUntilIdle();
    }
    bool undo()
    {
        model->undoSave();
        return waitUntilIdle();
    }
};

}  // namespace Quorbel::Test
