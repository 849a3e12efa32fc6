// The whole window over real photos, screen by screen: what each shows and says, found by looking at it.
// For tests only.
#pragma once

#include "platform/desktop/SystemScheme.h"
#include "tests/ui/LayoutAudit.h"
#include "tests/ui/inspector/HalfRead.h"
#include "tests/ui/inspector/InspectorFixture.h"

#include <QMainWindow>

#include <functional>
#include <memory>

namespace Quorbel {
class HelpView;
class SettingsView;
}  // namespace Quorbel

namespace Quorbel::Test {

using Scenes = QMap<QString, LayoutAudit>;

/// The photos that the window is walked over: three with much in them, folders, none, some that are
/// being read, and one of whose details the tool tells nothing.
struct WalkedPhotos {
    InspectorFixture photos{};
    InspectorFixture folders{};
    InspectorFixture none{};
    HalfRead half{};
    InspectorFixture untold{};

    /// Makes and opens them; false when one cannot be.
    bool open();
};

/// The screen that tests bring along says something at every change of every window; this drops it.
void dropSizeHintMessages();
/// The letters' size in points, for the whole program.
void setTextSize(qreal points);

class WindowWalk {
public:
    /// Asked about each screen that is shown, with its name.
    using Witness = std::function<void(const QString& name, QWidget* shown)>;

    WindowWalk(WalkedPhotos& over, QSize size);
    ~WindowWalk();

    /// What the banner and the question say on the walk: a failure with words of the tool.
    static QString message();
    /// Looks at everything, and leaves the photos as they were.
    Scenes scenes(const Witness& witness = {});

private:
    void settle() const;
    void look(Scenes& seen, const QString& name);
    void look(Scenes& seen, const QString& name, QMainWindow& window);
    void see(Scenes& seen, const QString& name, QWidget* shown);
    void single(Scenes& seen);
    void fieldSets(Scenes& seen);
    void cards(Scenes& seen);
    void openFromMenu(Scenes& seen, const QString& name, const QString& id, const QString& command);
    void filterMenu(Scenes& seen);
    void batch(Scenes& seen);
    void reading(Scenes& seen);

    InspectorFixture& m_photos;
    HalfRead& m_half;
    QSize m_size;
    SystemScheme m_scheme;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<QMainWindow> m_folders;
    std::unique_ptr<QMainWindow> m_empty;
    std::unique_ptr<QMainWindow> m_reading;
    std::unique_ptr<QMainWindow> m_untold;
    std::unique_ptr<SettingsView> m_settings;
    std::unique_ptr<HelpView> m_help;
    Witness m_witness;
};

}  // namespace Quorbel::Test
