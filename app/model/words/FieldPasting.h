// The fields of one photo, copied, and laid into what is edited of others; and the sheet that asks which of them.
// Thread: the main thread; what pasting would do to many photos is counted in the background. Writes nothing: what is
// pasted are edits.
#pragma once

#include "app/model/Preferences.h"
#include "app/model/words/LastCopy.h"
#include "core/words/PasteSummary.h"

#include <functional>

namespace Quorbel {

class AppModel;

class FieldPasting final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldPasting)

public:
    struct Parts {
        std::function<Edits()> unsaved{};  ///< what is edited of the selected photos
        QString lastCopyPath{};  ///< file of what was copied last; empty: it ends with the program
    };
    FieldPasting(AppModel& model, Parts parts);
    ~FieldPasting() override;

    bool canCopy() const;
    /// Takes the fields of the primary photo as they are on screen, with what is unsaved of it, to the clipboard.
    void copy();
    bool canPaste() const;
    /// Opens the sheet with what the clipboard holds, or else with what was copied last.
    void ask();
    /// Pastes the fields that are ticked, as the sheet left them; asks where none of them is.
    void pasteAgain();

    // --- The sheet ---
    bool isOpen() const { return m_isOpen; }
    void close();
    const CopiedFields& fields() const { return m_fields; }
    struct Row {
        QString key{};
        QString label{};
        QString value{};  ///< in one line
        QString note{};  ///< what pasting it does; "" while that is counted
        bool isTicked = false;
        bool losesText = false;  ///< pasting it would replace what some photo holds
        bool operator==(const Row&) const = default;
    };
    QList<Row> rows() const;
    int tickedCount() const;
    void setTicked(const QString& key, bool on);
    void tickAll(bool on);
    /// Photos that were not read yet: they get the fields, too, but are not counted.
    int unreadPhotos() const;
    /// Lays the ticked fields over what is edited of the selected photos, remembers the ticks and closes the sheet.
    void paste();

signals:
    void openChanged();
    /// Of the sheet: rows, ticks, counts, or the photos.
    void changed();

private:
    void connectModel();
    bool readFields();
    bool isTicked(const QString& key) const;
    QSet<QString> tickedKeys() const;
    void readTicks();
    void rememberTicks();
    void lay(const QSet<QString>& keys);
    void count();
    void takeCounts(const QMap<QString, PasteCount>& counts);
    QList<PasteSummary::Photo> countedPhotos() const;
    void offer(CopiedFields fields);
    void addDetails();

    /// What was copied before all was known of its photo.
    struct Unfinished {
        CopiedFields fields{};
        QUrl photo{};
        QByteArray text{};
        QSet<QString> cleared{};  ///< keys that were edited to nothing
    };

    AppModel& m_model;
    Parts m_parts;
    LastCopy m_lastCopy;
    Setting<QString> m_storedTicks;
    QMap<QString, bool> m_ticks;  ///< of the fields that somebody ticked or unticked
    CopiedFields m_fields;  ///< those that the sheet is about
    QMap<QString, PasteCount> m_counts;
    std::optional<Unfinished> m_unfinished;
    bool m_isOpen = false;
    bool m_isCounting = false;
    bool m_isStale = false;  ///< what is being counted is out of date
};

}  // namespace Quorbel
