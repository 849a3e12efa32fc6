// The user's settings and the recently opened items: read once, written whenever they change.
#include "app/model/AppModel.h"

#include "app/model/MainThread.h"
#include "core/schema/RecentItems.h"

#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRecents = 10;

/// An INI file holds a Boolean as a text. Anything that is neither is of the wrong type.
bool boolean(const QSettings& store, const QString& key, bool whenAbsent)
{
    const QVariant value = store.value(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (value.typeId() != QMetaType::QString)
        return whenAbsent;
    const QString text = value.toString();
    return text == u"true" || (text != u"false" && whenAbsent);
}

QString text(const QSettings& store, const QString& key, const QString& whenAbsent)
{
    const QVariant value = store.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : whenAbsent;
}

/// An INI file gives a list of one back as a plain text: only a path counts as such.
QStringList paths(const QSettings& store, const QString& key)
{
    const QVariant value = store.value(key);
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() == QMetaType::QString && value.toString().startsWith(u'/'))
        return { value.toString() };
    return {};
}

std::optional<ColorScheme> colorScheme(const QString& raw)
{
    if (raw == u"dark")
        return ColorScheme::dark;
    if (raw == u"light")
        return ColorScheme::light;
    return std::nullopt;
}

}  // namespace

void AppModel::readPreferences()
{
    QSettings& store = *m_services.preferences;
    m_showNamespace = boolean(store, u"showNamespace"_s, false);
    m_backupOriginals = boolean(store, u"backupOriginals"_s, true);
    m_writeSidecar = boolean(store, u"writeSidecar"_s, false);
    m_confirmMassEdit = boolean(store, u"confirmMassEdit"_s, true);
    m_saveDontAsk = boolean(store, u"saveDontAsk"_s, false);
    m_placeService = text(store, u"placeService"_s, {});
    m_renamePattern = text(store, u"renamePattern"_s, u"%Date%_%Title%"_s);
    m_stripSpecialChars = boolean(store, u"stripSpecialChars"_s, true);
    m_sortOrder = fromRawValue<RecordSortOrder>(text(store, u"sortOrder"_s, {})).value_or(RecordSortOrder::nameAsc);
    m_colorOverride = colorScheme(text(store, u"appearance"_s, {}));
    m_recentPaths = paths(store, u"recentItems"_s);
    // Stored at once, so that the defaults become values; a start that changes nothing writes no file.
    if (store.value(u"renamePattern"_s) != m_renamePattern)
        store.setValue(u"renamePattern"_s, m_renamePattern);
    if (store.value(u"sortOrder"_s) != rawValue(m_sortOrder))
        store.setValue(u"sortOrder"_s, rawValue(m_sortOrder));
}

template <typename T>
void AppModel::setPreference(T& member, const T& value, Signal changed, const QString& key)
{
    requireMainThread(qUtf8Printable(key));
    if (member == value)
        return;
    m_services.preferences->setValue(key, value);
    assign(member, value, changed);
}

void AppModel::setShowNamespace(bool on)
{
    setPreference(m_showNamespace, on, &AppModel::showNamespaceChanged, u"showNamespace"_s);
}

void AppModel::setBackupOriginals(bool on)
{
    setPreference(m_backupOriginals, on, &AppModel::backupOriginalsChanged, u"backupOriginals"_s);
}

void AppModel::setWriteSidecar(bool on)
{
    setPreference(m_writeSidecar, on, &AppModel::writeSidecarChanged, u"writeSidecar"_s);
}

void AppModel::setConfirmMassEdit(bool on)
{
    setPreference(m_confirmMassEdit, on, &AppModel::confirmMassEditChanged, u"confirmMassEdit"_s);
}

void AppModel::setSaveDontAsk(bool on)
{
    setPreference(m_saveDontAsk, on, &AppModel::saveDontAskChanged, u"saveDontAsk"_s);
}

void AppModel::setPlaceService(const QString& address)
{
    setPreference(m_placeService, address, &AppModel::placeServiceChanged, u"placeService"_s);
}

void AppModel::setRenamePattern(const QString& pattern)
{
    setPreference(m_renamePattern, pattern, &AppModel::renamePatternChanged, u"renamePattern"_s);
}

void AppModel::setStripSpecialChars(bool on)
{
    setPreference(m_stripSpecialChars, on, &AppModel::stripSpecialCharsChanged, u"stripSpecialChars"_s);
}

void AppModel::setColorOverride(std::optional<ColorScheme> scheme)
{
    requireMainThread("setColorOverride");
    if (!scheme)
        m_services.preferences->remove(u"appearance"_s);
    else
        m_services.preferences->setValue(u"appearance"_s, *scheme == ColorScheme::dark ? u"dark"_s : u"light"_s);
    assign(m_colorOverride, scheme, &AppModel::colorOverrideChanged);
}

QList<QUrl> AppModel::recentURLs() const
{
    QList<QUrl> urls;
    for (const QString& path : m_recentPaths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

void AppModel::recordRecent(const QList<QUrl>& urls)
{
    QStringList opened;
    for (const QUrl& url : urls)
        opened.append(url.toLocalFile());
    storeRecents(RecentItems::updated(m_recentPaths, opened, mostRecents));
}

void AppModel::openRecent(const QUrl& url)
{
    requireMainThread("openRecent");
    const QString path = url.toLocalFile();
    if (QFileInfo::exists(path))
        return requestLoad({ url });
    const Update update(*this);
    setErrorMessage(u"“%1” could no longer be found."_s.arg(url.fileName()));
    QStringList remaining = m_recentPaths;
    remaining.removeAll(path);
    storeRecents(remaining);
}

void AppModel::clearRecents()
{
    requireMainThread("clearRecents");
    storeRecents({});
}

void AppModel::storeRecents(const QStringList& paths)
{
    m_services.preferences->setValue(u"recentItems"_s, paths);
    assign(m_recentPaths, paths, &AppModel::recentPathsChanged);
}

}  // namespace Quorbel
