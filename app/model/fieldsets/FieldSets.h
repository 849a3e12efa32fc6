// Which set of fields is chosen, and what that means: what is on screen, and which wanted fields are empty. And the
// sets that the user made. Thread: the main thread. Writes nothing.
#pragma once

#include "app/model/Preferences.h"
#include "app/model/fieldsets/FieldFill.h"
#include "app/model/fieldsets/FieldSet.h"
#include "app/model/library/filter/Filtering.h"
#include "core/schema/FieldSpec.h"

#include <QObject>
#include <QUrl>

#include <functional>
#include <optional>

namespace Quorbel {

class AppModel;

class FieldSets final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldSets)

public:
    /// What it needs of the model's inner parts.
    struct Reach {
        std::function<FieldFill(const QString& id)> fill;
        /// Only these fields, and those that hold something, are on screen; nothing: the usual ones.
        std::function<void(const std::optional<QSet<QString>>&)> showOnly;
        /// Has these photos looked at; whether there is nothing to wait for any more.
        std::function<bool(const QList<QUrl>&)> require;
    };
    FieldSets(AppModel& model, Reach reach);
    ~FieldSets() override;

    /// The usual form's name, and in its place in names().
    static QString usual();
    /// The usual form, those that come with the program, the user's own.
    QStringList names() const;
    const QList<FieldSet>& own() const { return m_own; }
    /// The set of this name; null for the usual form, and for a name that is none.
    const FieldSet* find(const QString& name) const;
    /// The name of what is chosen.
    QString current() const;
    /// An unknown name chooses the usual form.
    void choose(const QString& name);
    /// Whether choosing is offered where one looks all day: the user chose one once, or made one.
    bool isOffered() const;

    // --- What is on screen ---
    /// Ids of the fields of a section that are on screen, without those of beside().
    QStringList visible(FieldSection section) const;
    /// Further fields that are on screen only because the selected photos hold something there, or are to; in the order
    /// of the form. None of the usual form.
    QStringList beside() const;

    // --- Wanted fields ---
    /// Whether the chosen set wants any.
    bool hasWanted() const;
    /// Whether the chosen set wants this field, and the selected photos are known to lack it.
    bool isGap(const QString& id) const;
    /// All of them, in the order of the form.
    QStringList gaps() const;
    struct Count {
        int filled = 0;
        int wanted = 0;
        bool operator==(const Count&) const = default;
    };
    /// Of the wanted fields of a section; nothing where it has none, and before they are known.
    std::optional<Count> count(FieldSection section) const;

    // --- Changing the user's own ---
    bool isEditing() const { return m_isEditing; }
    void edit();
    /// The same, with a new set of what is on screen now.
    void editWhatIsShown();
    /// The set that editing began with; nothing while it began with those that there are.
    const std::optional<FieldSet>& started() const { return m_started; }
    struct Edited {
        QString before{};  ///< its name as it is stored; empty: a new one
        FieldSet set{};
        bool operator==(const Edited&) const = default;
    };
    /// Why these cannot be stored, in one line; nothing when they can.
    static std::optional<QString> problem(const QList<Edited>& sets);
    /// The user's own sets are these. `chosen` is chosen then; empty: what is chosen stays so, under its new name.
    /// Needs sets without a problem.
    void store(const QList<Edited>& sets, const QString& chosen = {});
    void cancel();

signals:
    /// What is chosen, or which sets there are.
    void changed();
    void editingChanged();

private:
    const FieldSet* chosen() const { return find(m_storedCurrent()); }
    void lead();
    bool isBeside(const QString& id) const;
    bool isAllKnown() const;
    Filtering::Course::Found gapsOf(int position) const;
    void setEditing(bool on, std::optional<FieldSet> started = {});

    AppModel& m_model;
    Reach m_reach;
    QList<FieldSet> m_own;
    bool m_isEditing = false;
    std::optional<FieldSet> m_started;
    Setting<QString> m_storedSets;
    Setting<QString> m_storedCurrent;
    Setting<bool> m_storedOffered;
};

}  // namespace Quorbel
