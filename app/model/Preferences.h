// The user's settings: read once, written whenever they change. A setting is one line here.
// Thread: the main thread. Knows nothing of what the settings mean to others.
#pragma once

#include "core/schema/RecordSortOrder.h"
#include "core/sidecar/SidecarPolicy.h"

#include <QObject>
#include <QSettings>
#include <QStringList>

#include <memory>
#include <optional>

namespace Quorbel {

/// The appearance that the user chose over the system's.
enum class ColorScheme { light, dark, highContrast };

class Preferences;

/// One setting under its key in the store. A stored value of another type counts as absent.
template <typename T>
class Setting final {
public:
    Setting(Preferences& owner, const char* key, const T& whenAbsent);
    Q_DISABLE_COPY_MOVE(Setting)

    const T& operator()() const { return m_value; }
    /// Stores and announces a value that is another one.
    void set(const T& value);
    /// Writes the value even where it is the default and was never stored.
    void materialize();

private:
    Preferences& m_owner;
    QString m_key;
    T m_value;
};

class Preferences final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Preferences)

    // In front of the settings, which are read from it.
    std::shared_ptr<QSettings> m_store;

public:
    explicit Preferences(std::shared_ptr<QSettings> store);

    Setting<bool> showNamespace{ *this, "showNamespace", false };
    Setting<bool> backupOriginals{ *this, "backupOriginals", true };
    Setting<bool> writeSidecar{ *this, "writeSidecar", false };
    /// Where edits of raw photos go, and those of DNG: into the file, or beside it.
    Setting<bool> rawBeside{ *this, "rawBeside", false };
    Setting<bool> dngBeside{ *this, "dngBeside", false };
    Setting<SidecarNaming> sidecarNaming{ *this, "sidecarNaming", SidecarNaming::base };
    Setting<bool> confirmMassEdit{ *this, "confirmMassEdit", true };
    Setting<bool> saveDontAsk{ *this, "saveDontAsk", false };
    /// Address of an online place service that the user turned on; empty: places are looked up on this machine alone.
    Setting<QString> placeService{ *this, "placeService", {} };
    Setting<QString> renamePattern{ *this, "renamePattern", QString::fromLatin1("%Date%_%Title%") };
    Setting<bool> stripSpecialChars{ *this, "stripSpecialChars", true };
    /// Whether a folder is opened with the folders in it, where nobody says which.
    Setting<bool> openSubfolders{ *this, "openSubfolders", false };
    Setting<RecordSortOrder> sortOrder{ *this, "sortOrder", RecordSortOrder::nameAsc };
    Setting<std::optional<ColorScheme>> colorOverride{ *this, "appearance", std::nullopt };
    /// Code of the language to speak, as of Languages; empty: the desktop's. It holds from the next start on.
    Setting<QString> language{ *this, "language", {} };
    Setting<QStringList> recentPaths{ *this, "recentItems", {} };

    /// The store itself, for the views' own few values.
    QSettings& store() const { return *m_store; }

signals:
    /// One of the settings has another value.
    void changed();
};

}  // namespace Quorbel
