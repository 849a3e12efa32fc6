// The whole window as hands meet it, over photos of its own. For tests only.
#pragma once

#include "app/shell/Menus.h"
#include "tests/ui/window/WindowFixture.h"
#include "ui/closeup/CloseupView.h"
#include "ui/controls/BriefNote.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/InspectorView.h"
#include "ui/inspector/KeptField.h"
#include "ui/sheets/SaveDialogView.h"

#include <QDir>
#include <QPlainTextEdit>

#include <atomic>
#include <thread>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// The window with its menus and the real inspector, over photos a, b and c: "a" has all fields, "b" and "c" few.
struct HandsWindow : ModelFixture {
    HandsWindow()
    {
        services.endEditing = [] {
            QWidget* focus = QApplication::focusWidget();
            if (qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus))
                focus->clearFocus();
        };
        relaunch();
        static const QList<QByteArray> photos{ photo({ u"-XMP-dc:Title=One"_s, u"-XMP-dc:Description=Long"_s,
                                                   u"-XMP-iptcExt:Event=Final"_s, u"-XMP-dc:Subject=sea"_s,
                                                   u"-XMP:Rating=2"_s }),
            photo({ u"-XMP-dc:Title=Two"_s, u"-XMP-dc:Description=Longer"_s, u"-XMP:Rating=3"_s }),
            photo({ u"-XMP-dc:Title=Three"_s }) };
        QDir(folder.path()).mkdir(u"x"_s);
        for (int i = 0; i < 3; ++i)
            folder.add(QChar(u'a' + i) + u".jpg"_s, photos.at(i));
        folder.add(u"x/d.jpg"_s, photos.at(2));
    }
    static QByteArray photo(const QStringList& tags)
    {
        const PhotoFolder folder;
        const QString path = folder.add(u"x.jpg"_s).toLocalFile();
        exiftool(QStringList{ u"-overwrite_original"_s } + tags + QStringList{ path });
        return readFile(path);
    }
    /// What a close look decodes: pixels that tell where they are (red and green), and in which photo (blue).
    WholePicturesOptions pictures{ .decode = [this](const QString& path, qint64, const std::stop_token& stop) {
        while (isShut && !stop.stop_requested())
            std::this_thread::yield();
        QImage image(photoSize, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                reinterpret_cast<QRgb*>(image.scanLine(y))[x] = qRgb(x % 256, y % 256, numberOf(path));
        if (outcome != DecodedImage::Outcome::decoded || stop.stop_requested())
            return DecodedImage{ .outcome = outcome };
        return DecodedImage{ outcome, image, QSize(6000, 4000), path.endsWith(u"c.jpg"_s), path.endsWith(u"b.jpg"_s) };
    } };
    static int numberOf(const QString& path) { return 40 * (path.at(path.size() - 5).unicode() - u'a'); }
    CloseupView* closeup() const { return window->findChild<CloseupView*>(); }
    bool show(bool withSubfolders = false)
    {
        window = std::make_unique<QMainWindow>();
        ContentFactories factories;
        factories.inspector = [this](QWidget* parent) {
            return inspector = new InspectorView(*model, nullptr, nullptr, nullptr, parent);
        };
        factories.keptField = [](QWidget* view) { return &static_cast<InspectorView*>(view)->keptField(); };
        factories.closeup = [this](QWidget* over) { return new CloseupView(*model, nullptr, pictures, over); };
        factories.save = [this] { return new SaveDialogView(*model); };
        content = new ContentView(*model, nullptr, scheme, window.get(), factories);
        window->setMenuWidget(content->bar());
        window->setCentralWidget(content);
        window->resize(1200, 900);
        new Menus(*model, *content, { .openSettings = [] {}, .openHelp = [] {} });
        window->show();
        window->activateWindow();
        model->load({ folderURL() }, withSubfolders);
        return QTest::qWaitForWindowActive(window.get()) && waitUntilIdle() && !model->records().isEmpty();
    }
    /// At this photo, with nothing unsaved and nothing over the list, whatever was done before.
    void standAt(const QString& name)
    {
        // One that was left is gone only with the next turn of the event loop.
        if (closeup() && closeup()->isVisible())
            content->toggleCloseup();
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        click(name == u"a.jpg"_s ? u"b.jpg"_s : u"a.jpg"_s);
        model->discardSaveDialog();
        click(name);
        model->discardSaveDialog();
        QCoreApplication::processEvents();
    }
    QWidget* input(const QString& key) const
    {
        const FieldRow* row = inspector->findChild<InspectorForm*>()->row(key);
        return row ? row->input() : nullptr;
    }
    void press(int key, Qt::KeyboardModifiers modifiers) const
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window.get(), Qt::Key(key), modifiers);
    }
    /// What is selected in the field that has the keyboard.
    static QString selectedText()
    {
        if (const auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
            return line->selectedText();
        const auto* area = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
        return area ? area->textCursor().selectedText() : QString();
    }
    QString note() const
    {
        return window->findChild<BriefNote*>()->isVisible() ? content->window()->findChild<BriefNote*>()->text()
                                                            : QString();
    }

    static constexpr QSize photoSize{ 3000, 2000 };
    std::atomic<bool> isShut = false;
    std::atomic<DecodedImage::Outcome> outcome = DecodedImage::Outcome::decoded;
    SystemScheme scheme;
    std::unique_ptr<QMainWindow> window;
    ContentView* content = nullptr;
    InspectorView* inspector = nullptr;
};

}  // namespace Quorbel::Test
