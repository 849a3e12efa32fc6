#include "core/save/Companions.h"

#include "core/iptc/IptcDefinitions.h"
#include "core/language/Texts.h"
#include "core/save/FileMove.h"
#include "core/save/SaveGuard.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/TemporaryConfig.h"
#include "core/tool/WriteFailures.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>

#include <cerrno>

namespace Quorbel::Companions {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView sidecarSuffix(".xmp");
// The tool's word for a photo without XMP. Its sidecar, if there is one, is then left as it is.
constexpr QLatin1StringView nothingToCopy("Nothing to write");

// The photo's path as far as its sidecar has the same.
QString withoutExtension(const QString& photo)
{
    const auto nameAt = photo.lastIndexOf(u'/') + 1;
    const auto dot = photo.lastIndexOf(u'.');
    // A leading dot makes a hidden file, not an extension.
    return dot > nameAt ? photo.left(dot) : photo;
}

// As the name of a file to copy from to its sidecar: there the tool puts folder and name of the sidecar for "%d" and
// "%f", so a photo's own name with such text in it has to be put the same way.
QString sourceArgument(const QString& photo)
{
    return photo.contains(u'%') ? u"%d%f"_s + photo.sliced(withoutExtension(photo).size()) : photo;
}

// Whether the folder lists the file under just this name: where names do not differ by case, a file answers to others
// as well, and not always with the same inode.
bool isListed(const QString& path)
{
    const QFileInfo file(path);
    QDirIterator entries(file.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileName() == file.fileName())
            return true;
    }
    return false;
}

// Where names do not differ by case, a file stands in the way of its own new name: it goes by way of a third one.
int changeCase(const QString& from, const QString& to)
{
    const QString between = from + u"_renaming"_s;
    if (const int error = FileMove::withoutReplacing(from, between))
        return error;
    const int error = FileMove::withoutReplacing(between, to);
    if (error)
        FileMove::withoutReplacing(between, from);
    return error;
}

// A photo or one of its companions.
int move(const QString& from, const QString& to)
{
    const int error = FileMove::withoutReplacing(from, to);
    const bool differsByCase = from.compare(to, Qt::CaseInsensitive) == 0;
    return error == EEXIST && differsByCase && !isListed(to) ? changeCase(from, to) : error;
}

// What of the assignments takes a tag, or items of one, away, in its XMP form.
QList<Assignment> clearedXmp(const QList<Assignment>& assignments)
{
    using enum Assignment::Operation;
    QList<Assignment> cleared;
    for (const auto& assignment : assignments) {
        const auto isOfTag = [&assignment](const Assignment& other) { return other.tag == assignment.tag; };
        const bool clears = assignment.operation == set && assignment.value.isEmpty()
            && std::count_if(assignments.cbegin(), assignments.cend(), isOfTag) == 1;
        const bool takesAway =
            assignment.operation == remove && !assignments.contains({ assignment.tag, add, assignment.value });
        if ((clears || takesAway) && homeOf(assignment.tag) == u"XMP")
            cleared.append(assignment);
        else if (clears && (assignment.tag == u"GPSLatitude" || assignment.tag == u"GPSLongitude"))
            cleared.append({ .tag = u"XMP:"_s + assignment.tag });
    }
    return cleared;
}

// An emptied text leaves those in further languages, which the sidecar has got from the photo by then.
WriteCommand clearing(const WriteCommand& command)
{
    WriteCommand clearing{ .assignments = clearedXmp(command.assignments),
        .keptLanguages = command.keptLanguages,
        .languages = clearedXmp(command.languages) };
    clearing.keptLanguages.removeIf(
        [&clearing](const QString& tag) { return !clearing.assignments.contains({ .tag = tag }); });
    return clearing;
}

// `definitions`: of what the photo has just been given; without them the copy would lack it.
void writeSidecar(const ExifToolRunner& runner, const QUrl& photo, const WriteCommand& clearing,
    const QStringList& customNames, const QString& definitions)
{
    const QList<QUrl> sidecar = SaveGuard::filesBehindLinks({ QUrl::fromLocalFile(sidecarPath(photo.toLocalFile())) });
    const bool isNew = !QFile::exists(sidecar.constFirst().toLocalFile());
    SaveGuard::clearLeftovers(sidecar);
    const SaveGuard::AttributeKeeper attributes(sidecar);
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    std::optional<ToolError> failed;
    try {
        const TemporaryConfig config({}, definitions);
        runner.write({ .options = { u"-tagsfromfile"_s, sourceArgument(photo.toLocalFile()), u"-xmp:all"_s } }, sidecar,
            false, config.url());
    } catch (const ToolError& error) {
        failed = error;
    }
    if (!isNew) {
        const TemporaryConfig config(
            clearing.isEmpty() ? QStringList() : customNames, clearing.isEmpty() ? QString() : definitions);
        runner.write(clearing, sidecar, false, config.url());
    }
    if (failed && !failed->messages().contains(nothingToCopy))
        throw *failed;
}

QString reasonOf(const Error& error)
{
    const auto* ofTool = dynamic_cast<const ToolError*>(&error);
    return ofTool ? toolReason(*ofTool) : error.description();
}

}  // namespace

QString sidecarPath(const QString& photo)
{
    return withoutExtension(photo) + sidecarSuffix;
}

QString backupPath(const QString& photo)
{
    return photo + u"_original"_s;
}

QList<std::pair<QString, QString>> sidecarMoves(const QString& from, const QString& to)
{
    QList<std::pair<QString, QString>> moves{ { sidecarPath(from), sidecarPath(to) } };
    const QString upper = QString(sidecarSuffix).toUpper();
    moves.append({ withoutExtension(from) + upper, withoutExtension(to) + upper });
    for (const QString& suffix : { QString(sidecarSuffix), upper })
        moves.append({ from + suffix, to + suffix });
    return moves;
}

void movePhoto(const QUrl& source, const QUrl& destination, SidecarsAlong along)
{
    const QString from = source.toLocalFile();
    const QString to = destination.toLocalFile();
    if (const int error = move(from, to))
        throw FileError(Texts::tr("Cannot move “%1”"), source, qt_error_string(error));
    const QString mirror = sidecarPath(from);
    const QString whole = QFileInfo(from).fileName();
    for (const auto& [old, now] : sidecarMoves(from, to)) {
        // Of a file with the photo's whole name there is no doubt whose it is.
        const bool isOwn = QFileInfo(old).fileName().startsWith(whole);
        if (isOwn || along == SidecarsAlong::all || (along == SidecarsAlong::mirror && old == mirror))
            move(old, now);
    }
    move(backupPath(from), backupPath(to));
}

QList<FileFailure> writeSidecars(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& photos,
    const QStringList& customNames)
{
    const WriteCommand further = clearing(command);
    const QString definitions = IptcDefinitions::areNeeded(command.assignments) ? IptcDefinitions::text() : QString();
    QList<FileFailure> failures;
    for (const auto& photo : photos) {
        const QString path = sidecarPath(photo.toLocalFile());
        try {
            if (SaveGuard::isReadOnly(QUrl::fromLocalFile(path)))
                failures.append({ QUrl::fromLocalFile(path), u"read-only"_s });
            else
                writeSidecar(runner, photo, further, customNames, definitions);
        } catch (const Error& error) {
            failures.append({ QUrl::fromLocalFile(path), reasonOf(error) });
        }
    }
    return failures;
}

}  // namespace Quorbel::Companions
