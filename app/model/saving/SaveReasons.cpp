#include "app/model/saving/SaveReasons.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/NumberCheck.h"
#include "core/language/Texts.h"
#include "core/save/SaveVerification.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel::SaveReasons {

using namespace Qt::StringLiterals;

namespace {

QStringList tagsOf(const QStringList& keys)
{
    QStringList tags;
    for (const QString& key : keys) {
        const FieldSpec* field = FieldSchema::spec(key);
        if (field && field->kind == FieldKind::coordinates)
            tags << u"GPSLatitude"_s << u"GPSLongitude"_s;
        else if (field)
            tags += field->writeTags;
        else if (const QString tag = FieldLanguages::tag(key); !tag.isEmpty())
            tags.append(tag);
        else if (const auto name = MetadataWriter::sanitizeCustomName(CustomFields::nameIn(key).value_or(key)))
            tags.append(*name);
    }
    return tags;
}

// No field has no reason.
QString reasonsFor(const QStringList& keys, const QString& messages)
{
    const QStringList tags = tagsOf(keys);
    return tags.isEmpty() ? QString() : refusals(messages, tags).join(u"; "_s);
}

QString numberProblem(const EditPlan& plan, const FieldSpec& field)
{
    const ListChange change = plan.iptcLists.value(field.id);
    return NumberCheck::problem(
        field, QStringList(plan.scalars.value(field.id)) + change.whole.value_or(QStringList()) + change.added);
}

// What was not asked of the tool: "not a whole number: “abc” in a.jpg, b.jpg". Of one photo it needs no name.
QString refusedText(const QString& key, const SaveJob::Written& written)
{
    const FieldSpec* field = IptcSchema::spec(key);
    QMap<QString, QStringList> photos;  // by reason
    for (auto photo = written.photos.cbegin(); field && photo != written.photos.cend(); ++photo)
        if (const QString problem = numberProblem(photo->plan, *field); !problem.isEmpty())
            photos[problem].append(photo.key().fileName());
    QStringList texts;
    for (auto reason = photos.begin(); reason != photos.end(); ++reason) {
        reason->sort();
        //: %1 is why something was not written, %2 names photos: "not a whole number: “abc” in a.jpg, b.jpg"
        texts.append(
            written.photos.size() == 1 ? reason.key() : Texts::tr("%1 in %2").arg(reason.key(), Text::listed(*reason)));
    }
    return texts.join(u"; "_s);
}

QStringList namesOf(const QList<QUrl>& files)
{
    QStringList names;
    for (const QUrl& file : files)
        names.append(file.fileName());
    return names;
}

}  // namespace

QString notWritten(const QStringList& keys, const QString& messages)
{
    const QString reasons = reasonsFor(keys, messages);
    return reasons.isEmpty() ? Texts::tr("not written") : Texts::tr("not written: %1").arg(reasons);
}

QString refused(const QMap<QString, QString>& reasonByHome)
{
    QStringList texts;
    for (auto it = reasonByHome.cbegin(); it != reasonByHome.cend(); ++it)
        //: %1 is a part of the file that takes no text ("EXIF"), %2 why: "EXIF refused: Bad format"
        texts.append(Texts::tr("%1 refused: %2").arg(it.key(), *it));
    return texts.join(u"; "_s);
}

QStringList homesToLeaveOut(const QMap<QUrl, QMap<QString, QString>>& refusedHomes)
{
    const auto fewest = std::min_element(
        refusedHomes.cbegin(), refusedHomes.cend(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
    return fewest == refusedHomes.cend() ? QStringList() : fewest->keys();
}

QString differencesText(const QStringList& keys, const SaveJob::Written& written)
{
    QStringList labels;
    for (const QString& key : keys) {
        const QString refused = refusedText(key, written);
        const QString reasons = refused.isEmpty() ? reasonsFor({ key }, written.notes.messages) : refused;
        const QString label = SaveVerification::labels({ key }).constFirst();
        labels.append(reasons.isEmpty() ? label : u"%1 (%2)"_s.arg(label, reasons));
    }
    if (written.isUntouched)
        //: %1 names fields
        return Texts::tr("Nothing was written: %1").arg(labels.join(u", "_s));
    //: %1 names the fields
    return Texts::tr("Saved, but %n field(s) (reads|read) back differently: %1", nullptr, keys.size())
        .arg(labels.join(u", "_s));
}

QString notesText(const WriteNotes& notes)
{
    QStringList texts;
    if (!notes.iptcLeftAlone.isEmpty())
        //: %1 names the photos
        texts.append(Texts::tr("Saved, but IPTC was left alone in photos that have several blocks of it: %1")
                         .arg(Text::listed(namesOf(notes.iptcLeftAlone))));
    QStringList sidecars;
    for (const FileFailure& failure : notes.sidecars)
        sidecars.append(u"%1 (%2)"_s.arg(failure.file.fileName(), failure.reason));
    if (!sidecars.isEmpty())
        //: %1 names files beside photos, with the reasons
        texts.append(Texts::tr("Not brought up to date: %1").arg(Text::listed(sidecars)));
    return texts.join(u". "_s);
}

}  // namespace Quorbel::SaveReasons
