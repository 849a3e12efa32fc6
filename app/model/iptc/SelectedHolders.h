// How many of the selected photos hold each field of IptcSchema.
// Thread: the main thread. Asks the model, and counts once until it says that something changed; changes nothing.
#pragma once

#include <QHash>
#include <QObject>

#include <optional>

namespace Quorbel {

class AppModel;

class SelectedHolders final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectedHolders)

public:
    struct Count {
        int photos = 0;  ///< that are known to hold it
        int unknown = 0;  ///< that were not looked at yet
        bool operator==(const Count&) const = default;
    };

    explicit SelectedHolders(const AppModel& model, QObject* parent = nullptr);
    Count of(const QString& id) const;

private:
    struct Counted {
        QHash<QString, int> photos{};  ///< by key
        int unknown = 0;
    };
    Counted count() const;

    const AppModel& m_model;
    mutable std::optional<Counted> m_counted;
};

}  // namespace Quorbel
