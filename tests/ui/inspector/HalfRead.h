// An inspector over a folder that is still being read: a gate holds back what is to stay unread. For tests only.
#pragma once

#include "tests/ui/inspector/InspectorFixture.h"

namespace Quorbel::Test {

/// 72 photos, so many that they are not read together: "a.jpg", "b.jpg", "c0.jpg" and on. All but the first are alike.
class HalfRead : public InspectorFixture {
public:
    HalfRead();
    /// Opens the folder and waits until all but "a.jpg" are read. That one is selected.
    bool openHalf(QSize size = { 520, 900 });
    /// Opens the folder; nothing is read.
    bool openUnread(QSize size = { 520, 900 });
    /// Opens the gate and waits until all photos are read.
    bool readAll();
    QStringList unread() const;

    GatedTool tool;
};

}  // namespace Quorbel::Test
