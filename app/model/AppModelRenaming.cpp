// Renaming the one selected photo from a pattern and its draft.
#include "app/model/AppModel.h"

#include "app/model/pairs/Pairing.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "core/language/Texts.h"
#include "core/renaming/FolderListing.h"
#include "core/schema/FieldID.h"
#include "core/text/FileNaming.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString folderOf(const ImageRecord& record)
{
    return QFileInfo(record.url.toLocalFile()).path();
}

// What the names of all files that go along with a shot have behind its base name.
QStringList endsOfShot(const QStringList& files, const FolderNames::Listing& names)
{
    const QString base = CompanionNames::baseOf(files.constFirst()).toLower();
    QStringList near;
    for (auto name = names.uses.keyBegin(); name != names.uses.keyEnd(); ++name)
        if (name->startsWith(base + u'.'))
            near.append(*name);
    const CompanionNames companions(near, CompanionNames::Kind::all);
    QStringList ends;
    for (const QString& file : files)
        for (const QString& name : QStringList{ file.toLower() } + companions.of(file.toLower()))
            ends.append(name.sliced(base.size()));
    ends.removeDuplicates();
    return ends;
}

}  // namespace

bool AppModel::canRename() const
{
    requireMainThread("canRename");
    if (selection().size() != 1 || !primaryRecord()
        || !unreadOf(pairing().filesOf(QList<QUrl>{ *primary() })).isEmpty())
        return false;
    for (const QLatin1StringView id : { FieldID::date, FieldID::title, FieldID::creator, FieldID::place })
        if (!Text::trimmed(draftValues().value(id)).isEmpty())
            return true;
    return false;
}

void AppModel::insertRenameToken(const QString& token)
{
    requireMainThread("insertRenameToken");
    const QString& pattern = m_preferences.renamePattern();
    const bool needsNoSeparator = pattern.isEmpty() || pattern.endsWith(u'_') || pattern.endsWith(u'%');
    m_preferences.renamePattern.set(pattern + (needsNoSeparator ? QString() : u"_"_s) + token);
}

QString AppModel::renamePreview() const
{
    requireMainThread("renamePreview");
    const ImageRecord* record = primaryRecord();
    return record ? newFileName(*record, m_folderNames.known(folderOf(*record))) : QString();
}

std::optional<QString> AppModel::renameProblem() const
{
    requireMainThread("renameProblem");
    const ImageRecord* record = primaryRecord();
    if (record && renderedBase(*record).contains(u'/'))
        return Texts::tr("A file name cannot hold “/”.");
    return std::nullopt;
}

QMap<QString, QString> AppModel::renameValues(const ImageRecord& record) const
{
    const QStringList date = draftValues().value(FieldID::date).split(u' ', Qt::SkipEmptyParts);
    return {
        { u"%Date%"_s, date.value(0) },
        { u"%Time%"_s, date.value(1).remove(u':') },
        { u"%Title%"_s, draftValues().value(FieldID::title) },
        { u"%Creator%"_s, draftValues().value(FieldID::creator) },
        { u"%Place%"_s, draftValues().value(FieldID::place) },
        { u"%Original%"_s, QFileInfo(record.fileName).completeBaseName() },
    };
}

QString AppModel::renderedBase(const ImageRecord& record) const
{
    return FileNaming::render(m_preferences.renamePattern(), renameValues(record), m_preferences.stripSpecialChars());
}

QString AppModel::newFileName(const ImageRecord& record, const FolderNames::Listing& names) const
{
    const QString base = renderedBase(record);
    const QString own = CompanionNames::baseOf(record.fileName);
    QStringList ends{ record.fileName.sliced(own.size()) };
    // Another's sidecar would be taken for the photo's, and its own would stay behind.
    if (m_sidecarPolicy.isBeside(record.url))
        ends += { u".xmp"_s, ends.constFirst() + u".xmp"_s };
    if (const auto picture = pairing().pictureOf(record.url))
        ends = endsOfShot({ record.fileName, picture->fileName() }, names);
    return FileNaming::uniqueFileName(base, QFileInfo(record.fileName).suffix(), [&](const QString& name) {
        const QString free = CompanionNames::baseOf(name);
        return std::any_of(
            ends.cbegin(), ends.cend(), [&](const QString& end) { return names.isTaken(free + end, own + end); });
    });
}

void AppModel::performRename()
{
    requireMainThread("performRename");
    const ImageRecord* record = primaryRecord();
    if (!record || !m_services.service || (m_sheets.rename && m_sheets.renamed != record->url))
        return;
    if (const auto problem = renameProblem())
        return setErrorMessage(Texts::tr("Could not rename: %1").arg(*problem));
    if (const auto picture = pairing().pictureOf(record->url)) {
        if (isSaving())
            return setErrorMessage(Texts::tr("Could not rename: “%1” is being saved.").arg(record->fileName));
        return renaming().renameShot({ *record, *photos().record(*picture) }, renderedBase(*record));
    }
    const QString name = newFileName(*record, m_folderNames.current(folderOf(*record)));
    if (name == record->fileName)
        return;
    const QUrl source = record->url;
    // ExifTool is about to put its new file under the old name.
    if (m_library.refresh().writes().isBeingWritten(source))
        return setErrorMessage(Texts::tr("Could not rename: “%1” is being saved.").arg(record->fileName));
    const QUrl destination = QUrl::fromLocalFile(QFileInfo(source.toLocalFile()).dir().filePath(name));
    try {
        m_services.service->renameFile(source, destination);
    } catch (const Error& error) {
        return setErrorMessage(Texts::tr("Could not rename: %1").arg(error.description()));
    }
    m_saving.noteRename(source, destination);
    takeRenamed(source, destination);
}

// The drafts stay: they belong to the same photo.
void AppModel::takeRenamed(const QUrl& source, const QUrl& destination)
{
    const Announcer::Together together(m_announcer);
    if (onImageRenamed)
        onImageRenamed(source, destination);
    // The name was free: the photo that had it is gone, and nobody has told us yet.
    if (const int gone = photos().position(destination); gone >= 0)
        takeVanished({ gone });
    if (m_sheets.renamed == source)
        m_sheets.renamed = destination;
    const NewNames names(source, destination);
    photos().rename(names);
    m_library.details().rename(names);
    m_editing.rename(names);
    renaming().lookAgain();
}

}  // namespace Quorbel
