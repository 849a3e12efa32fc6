// Photos whose saves wait until a test lets them go. Thread: the test's.
#pragma once

#include "tests/app/model/ModelFixture.h"

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Photos "a", "b" and "c" behind a gated tool, open; "a" is selected.
struct GatedPhotos : GatedTool, ModelFixture {
    GatedPhotos()
        : ModelFixture(service())
    {
        for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
            folder.add(name);
    }
    void selectAB()
    {
        click(u"a.jpg"_s);
        click(u"b.jpg"_s, false, true);
    }
};

}  // namespace Quorbel::Test
