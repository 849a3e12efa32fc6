// Contacts and licensors that were saved before, to be picked again instead of typed.
// Thread: the main thread. They are kept with the settings, on this machine alone; nobody else's are looked for.
#pragma once

#include "app/model/Preferences.h"

#include <QHash>
#include <QMap>

namespace Quorbel {

class AppModel;
struct Edits;
struct ImageRecord;

struct RememberedCard {
    QString card{};  ///< as StructureText has it
    QString name{};  ///< of the creator whom a contact belongs to, which it does not hold itself
    bool operator==(const RememberedCard&) const = default;
};

class RememberedCards final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RememberedCards)

public:
    /// So many of each field.
    static constexpr int most = 20;

    explicit RememberedCards(AppModel& model);
    ~RememberedCards() override;

    /// Whether what this field holds is remembered.
    static bool isAbout(const QString& id);
    /// The one that was used last first.
    const QList<RememberedCard>& of(const QString& id) const;
    /// How one is called: "Mara Lindqvist · Zürich".
    static QString label(const QString& id, const RememberedCard& card);
    void forget(const QString& id, const QString& card);
    void forgetAll(const QString& id);

    /// A save of these edits begins.
    void noteSaving(const Edits& edits);
    /// It has ended. `photos`: as they are now; `failed`: those that were not saved; `refused`: keys of fields that
    /// were not.
    void noteSaved(const QList<ImageRecord>& photos, const QSet<QUrl>& failed, const QSet<QString>& refused);

signals:
    void changed();

private:
    void use(const QString& id, const RememberedCard& card);
    void keep();

    QMap<QString, QList<RememberedCard>> m_cards;
    QMap<QString, QHash<QUrl, QStringList>> m_saving;  ///< by field and photo, what is being saved
    Setting<QString> m_stored;
};

}  // namespace Quorbel
