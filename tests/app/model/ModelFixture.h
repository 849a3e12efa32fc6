// A model over a temporary folder of photos, with preferences and services of its own.
// Thread: the test's. Waits run the event loop, as the program does.
#pragma once

#include "app/model/AppModel.h"
#include "tests/support/Support.h"

#include <QSignalSpy>

namespace Quorbel::Test {

/// The real tool behind a gate: while it is shut, runs wait before they begin; only those that have, for each line of
/// the text, an argument that holds it.
class GatedTool {
public:
    GatedTool();
    ~GatedTool() { release(); }
    Q_DISABLE_COPY_MOVE(GatedTool)
    MetadataService service() const;
    void shut(const QByteArray& text = {}) const;
    void release() const;
    /// Waits until a run stands at the gate.
    bool waitForRun() const;

private:
    QTemporaryDir m_directory;
};

/// Which signals the model emits while this lives, and how often.
class Announcements {
public:
    explicit Announcements(AppModel& model);
    /// By the signal's name; signals that were not emitted are not among them.
    QMap<QString, int> counts() const;

private:
    std::vector<std::pair<QString, std::unique_ptr<QSignalSpy>>> m_spies;
};

/// "ab": a.jpg and b.jpg.
QStringList jpgs(const QString& letters);

class ModelFixture {
public:
    /// Around the real tool.
    ModelFixture();
    explicit ModelFixture(const std::optional<MetadataService>& service);

    AppModel* operator->() const { return model.get(); }
    /// Makes these photos, each with its own name as its title.
    void addTitled(const QStringList& names) const;
    /// Opens the photo folder and waits for the read to end; whether that worked.
    bool open();
    /// From now on the details of photos are read as soon as nothing else runs; else no test is disturbed by such runs.
    /// `details`: by this instead of the tool. The model is built again.
    void lookAtDetails(decltype(AppModelServices::details) details = {});
    bool load(const QList<QUrl>& urls);
    bool waitUntilIdle();
    void click(const QString& name, bool shift = false, bool command = false);
    /// To the question about unsaved edits: "save", "discard" or "cancel".
    void answerSave(const QString& answer);
    /// Selects the photos of these letters ("ab": a.jpg and b.jpg), the first one first.
    void select(const QString& letters);

    QUrl url(const QString& name) const { return folder.url(name); }
    QUrl folderURL() const { return QUrl::fromLocalFile(folder.path()); }
    /// File names on screen, in order.
    QStringList visible() const;
    /// File names of the selected photos, sorted.
    QStringList selected() const;
    /// File name of the primary photo; "" when there is none.
    QString primary() const;
    /// One tag as the real tool reads it now.
    QJsonValue onDisk(const QString& name, const QString& tag) const;
    /// Builds the model again, as the next launch of the program would.
    void relaunch();

    PhotoFolder folder;
    QTemporaryDir settings;
    AppModelServices services;
    std::unique_ptr<AppModel> model;
};

}  // namespace Quorbel::Test
