// Renaming the one selected photo from a pattern and its draft.
#include "app/model/AppModel.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"
#include "core/schema/FieldID.h"
#include "core/text/FileNaming.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

void AppModel::setRenameOpen(bool open)
{
    requireMainThread("setRenameOpen");
    assign(m_renameOpen, open, &AppModel::renameOpenChanged);
}

bool AppModel::canRename() const
{
    requireMainThread("canRename");
    if (m_selection.size() != 1 || !primaryRecord())
        return false;
    for (const QLatin1StringView id : { FieldID::date, FieldID::title, FieldID::creator, FieldID::place })
        if (!Text::trimmed(m_draftValues.value(id)).isEmpty())
            return true;
    return false;
}

void AppModel::insertRenameToken(const QString& token)
{
    requireMainThread("insertRenameToken");
    const bool needsNoSeparator =
        m_renamePattern.isEmpty() || m_renamePattern.endsWith(u'_') || m_renamePattern.endsWith(u'%');
    setRenamePattern(m_renamePattern + (needsNoSeparator ? QString() : u"_"_s) + token);
}

QString AppModel::renamePreview() const
{
    requireMainThread("renamePreview");
    const ImageRecord* record = primaryRecord();
    return record ? newFileName(*record) : QString();
}

QMap<QString, QString> AppModel::renameValues(const ImageRecord& record) const
{
    const QStringList date = m_draftValues.value(FieldID::date).split(u' ', Qt::SkipEmptyParts);
    return {
        { u"%Date%"_s, date.value(0) },
        { u"%Time%"_s, date.value(1).remove(u':') },
        { u"%Title%"_s, m_draftValues.value(FieldID::title) },
        { u"%Creator%"_s, m_draftValues.value(FieldID::creator) },
        { u"%Place%"_s, m_draftValues.value(FieldID::place) },
        { u"%Original%"_s, QFileInfo(record.fileName).completeBaseName() },
    };
}

QString AppModel::newFileName(const ImageRecord& record) const
{
    const QString base = FileNaming::render(m_renamePattern, renameValues(record), m_stripSpecialChars);
    QSet<QString> taken;
    const QDir folder = QFileInfo(record.url.toLocalFile()).dir();
    const QStringList names =
        folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString& name : names)
        if (name != record.fileName)
            taken.insert(name.toLower());
    return FileNaming::uniqueFileName(base, QFileInfo(record.fileName).suffix(),
        [&taken](const QString& name) { return taken.contains(name.toLower()); });
}

void AppModel::performRename()
{
    requireMainThread("performRename");
    const ImageRecord* record = primaryRecord();
    if (!record || !m_services.service)
        return;
    const QString name = newFileName(*record);
    if (name == record->fileName)
        return;
    const QUrl source = record->url;
    // ExifTool is about to put its new file under the old name.
    if (m_beingWritten.contains(source))
        return setErrorMessage(u"Could not rename: “%1” is being saved."_s.arg(record->fileName));
    const QUrl destination = QUrl::fromLocalFile(QFileInfo(source.toLocalFile()).dir().filePath(name));
    try {
        m_services.service->renameFile(source, destination);
    } catch (const Error& error) {
        return setErrorMessage(u"Could not rename: "_s + error.description());
    }
    if (m_history) {
        m_history->noteRename(source.toLocalFile(), destination.toLocalFile());
        runInBackground(
            this, [history = m_history] { history->storeRenames(); }, [] {});
    }
    takeRenamed(source, destination);
}

/// The drafts stay: they belong to the same photo.
void AppModel::takeRenamed(const QUrl& source, const QUrl& destination)
{
    const Update update(*this);
    const int position = m_index.position(source);
    m_records[position].url = destination;
    m_records[position].fileName = destination.fileName();
    m_index.replace(position, m_records.at(position));
    announce(&AppModel::recordsChanged);
    recordContentChanged();
    updateVisibleRows(true);
    if (m_selection.contains(source)) {
        m_selection.remove(source);
        m_selection.insert(destination);
        announce(&AppModel::selectionChanged);
    }
    if (m_anchor == source)
        m_anchor = destination;
    if (m_primary == source)
        assign(m_primary, destination, &AppModel::primaryChanged);
}

}  // namespace Quorbel
