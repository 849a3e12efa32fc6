// The main window's content over a real model and real files, on a screen of 1920 by 1080 pixels. For tests only.
#pragma once

#include "platform/desktop/SystemScheme.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/ui/UiSupport.h"
#include "ui/sheets/Sheet.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMainWindow>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Runs a test class on a screen that is large enough for the whole window.
template <typename TestClass>
int runOnLargeScreen(int argc, char* argv[])
{
    const QTemporaryDir folder;
    const QString screens = folder.filePath(u"screens.json"_s);
    writeFile(
        screens, R"({"screens":[{"name":"test","x":0,"y":0,"width":1920,"height":1080,"logicalDpi":96,"dpr":1}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.toLocal8Bit());
    qputenv("QUORBEL_REDUCE_MOTION", "1");
    const QApplication application(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
}

/// A sheet with two fields and a button, which counts its answers.
class SampleSheet final : public SheetBody {
public:
    explicit SampleSheet(std::function<void()> close)
        : first(new QLineEdit(this))
        , second(new QLineEdit(this))
        , m_close(std::move(close))
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(first);
        column->addWidget(second);
    }
    QString title() const override { return u"Sample"_s; }
    void confirm() override
    {
        ++confirmed;
        m_close();
    }
    void cancel() override
    {
        ++cancelled;
        m_close();
    }

    QLineEdit* first;
    QLineEdit* second;
    static inline int confirmed = 0;
    static inline int cancelled = 0;

private:
    std::function<void()> m_close;
};

class WindowFixture {
public:
    explicit WindowFixture(ThumbnailStore* thumbs = nullptr)
        : WindowFixture(MetadataService{ realTool() }, thumbs)
    {
    }
    explicit WindowFixture(const std::optional<MetadataService>& service, ThumbnailStore* thumbs = nullptr)
        : model(service)
    {
        SampleSheet::confirmed = 0;
        SampleSheet::cancelled = 0;
        model.services.openPanel = [this](const auto&) { ++panels; };
        model.relaunch();
        build(thumbs);
    }

    /// Makes the window again, as the next start of the program would.
    void build(ThumbnailStore* thumbs = nullptr)
    {
        window.reset();
        window = std::make_unique<QMainWindow>();
        ContentFactories factories;
        factories.inspector = [this](QWidget* parent) {
            inspector = new QWidget(parent);
            auto* field = new QLineEdit(inspector);
            field->setObjectName(u"field"_s);
            return inspector;
        };
        factories.addField = [this] { return new SampleSheet([this] { model->setAddOpen(false); }); };
        factories.save = [this] { return new SampleSheet([this] { model->cancelSaveDialog(); }); };
        factories.rename = [this] { return new SampleSheet([this] { model->setRenameOpen(false); }); };
        content = new ContentView(*model.model, thumbs, scheme, window.get(), factories);
        content->buildColumns();
        window->setMenuWidget(content->bar());
        window->setCentralWidget(content);
        window->setMinimumSize(ContentView::minimumWindow);
        window->resize(1200, 800);
    }

    void show()
    {
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    /// Opens a folder with these photos.
    void open(const QStringList& names)
    {
        model.addTitled(names);
        QVERIFY(model.open());
    }

    /// The visible button with this accessible name or text.
    QAbstractButton* button(const QString& name) const { return Test::button(window.get(), name); }

    ModelFixture model;
    SystemScheme scheme;
    std::unique_ptr<QMainWindow> window;
    ContentView* content = nullptr;
    QWidget* inspector = nullptr;
    int panels = 0;
};

}  // namespace Quorbel::Test
