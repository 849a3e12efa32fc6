// Keywords that one click gives to all selected photos: those that were used last, and named sets, one of which is
// shown; and the set that is being made or changed.
// Thread: the main thread. Writes nothing: what it gives are edits.
#pragma once

#include "app/model/Preferences.h"
#include "app/model/words/QuickSet.h"

#include <QObject>

namespace Quorbel {

class AppModel;

class QuickKeywords final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickKeywords)

public:
    /// So many have a key of their own, and so many are remembered as used last.
    static constexpr int withKeys = 9;

    explicit QuickKeywords(AppModel& model);
    ~QuickKeywords() override;

    const QList<QuickSet>& sets() const { return m_sets; }
    /// The name of the set that is shown; empty: those that were used last.
    QString current() const;
    /// Of what is shown, as they are typed: perhaps with their parents.
    QStringList keywords() const;
    /// An unknown name shows those that were used last.
    void show(const QString& name);
    /// Whether there is a photo that can take them.
    bool canGive() const;
    /// Adds one of keywords() to all selected photos, as an unsaved edit; another position changes nothing.
    void give(int position);

    /// The set that is being made (without a name of before) or changed; nothing else.
    struct Edited {
        QString before{};  ///< its name as it is stored; empty: a new one
        QuickSet set{};
        bool operator==(const Edited&) const = default;
    };
    const std::optional<Edited>& edited() const { return m_edited; }
    /// A new set, of what is shown where those are the last used ones.
    void beginNew();
    /// The set that is shown.
    void beginChange();
    /// Why the set cannot be stored under this name, in one line; nothing when it can.
    std::optional<QString> problem(const QString& name) const;
    /// Stores the set that is edited with this content, and shows it. Needs a name without a problem.
    void store(const QuickSet& set);
    /// Deletes the set that is edited.
    void remove();
    void cancel();

signals:
    /// What is shown, or which sets there are.
    void changed();
    void editedChanged();

private:
    int position(const QString& name) const;
    void noteUsed();
    void keep();
    void edit(std::optional<Edited> edited);

    AppModel& m_model;
    QList<QuickSet> m_sets;
    QStringList m_last;  ///< used last, where they stand
    std::optional<Edited> m_edited;
    Setting<QString> m_storedSets;
    Setting<QString> m_storedCurrent;
    Setting<QStringList> m_storedLast;  ///< the newest first
};

}  // namespace Quorbel
