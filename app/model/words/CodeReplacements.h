// What short codes stand for: "=js=" in a text becomes "Jane Smith, goalkeeper". Read from one file of the user's, and
// read again whenever that changes.
// Thread: the main thread; the file is looked at and read in the background. Never writes it.
#pragma once

#include "app/model/Preferences.h"
#include "app/model/library/FolderWatcher.h"
#include "core/words/CodeList.h"

#include <functional>
#include <memory>

namespace Quorbel {

class AppModel;

class CodeReplacements final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CodeReplacements)

public:
    /// Asks the user for a file; calls back with its path, or not at all.
    using Chooser = std::function<void(const std::function<void(const QString& path)>& chosen)>;

    explicit CodeReplacements(AppModel& model);
    ~CodeReplacements() override;

    /// Absolute path of the file; "" where none was chosen.
    const QString& file() const { return m_file(); }
    void setFile(const QString& path);
    /// Whoever can ask is the shell's to know.
    void setChooser(Chooser chooser) { m_chooser = std::move(chooser); }
    void choose();

    /// Nothing for a code that is not known.
    std::optional<QString> text(const QString& code) const { return m_read.codes.text(code); }
    /// The same as a function, for fields; it may outlive this.
    std::function<std::optional<QString>(const QString& code)> texts();
    int count() const { return int(m_read.codes.count()); }
    /// Why there are no codes though a file was chosen; "" where they were read.
    const QString& problem() const { return m_read.problem; }
    /// What is wrong in the file, a line each.
    const QStringList& notes() const { return m_read.codes.notes(); }
    /// Whether the file has been read, or was found to be unreadable, since it was chosen.
    bool isKnown() const { return m_isKnown; }

    /// Looks whether the file changed, where the system may not have told.
    void look();

signals:
    /// Another file, or it holds something else.
    void changed();

private:
    /// What a look at the file found.
    struct Found {
        QString path{};
        QByteArray stamp{};  ///< changes with the file
        bool isSame = false;  ///< as the stamp that was known
        CodeList codes{};
        QString problem{};
    };
    static Found lookedUp(const QString& path, const QByteArray& known, FolderWatches& watches);
    void take(Found found);
    void begin();

    Setting<QString> m_file;
    Chooser m_chooser;
    Found m_read;
    std::unique_ptr<FolderWatcher> m_watcher;  ///< until a file was chosen: the system grants few
    bool m_isKnown = false;
    bool m_isLooking = false;
    bool m_isStale = false;  ///< something happened since the look began
};

}  // namespace Quorbel
