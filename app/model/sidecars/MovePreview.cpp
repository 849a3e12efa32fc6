#include "app/model/sidecars/MovePreview.h"

#include "app/model/iptc/CredentialsNotice.h"
#include "core/language/Texts.h"
#include "core/save/SaveVerification.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The names are the text's %1.
void addLine(QStringList& lines, const QStringList& names, const QString& text)
{
    if (!names.isEmpty())
        lines.append(text.arg(Text::listed(names)));
}

// Keys sort by their fields: "title@de" behind "title".
QStringList inOrder(QStringList keys)
{
    QHash<QString, qsizetype> places;
    const QList<FieldSpec>& fields = FieldSchema::everyField();
    for (qsizetype i = 0; i < fields.size(); ++i)
        places.insert(fields.at(i).id, i);
    const auto place = [&](const QString& key) {
        return std::pair(places.value(key.section(u'@', 0, 0), fields.size()), key);
    };
    std::sort(keys.begin(), keys.end(), [&](const QString& a, const QString& b) { return place(a) < place(b); });
    return keys;
}

}  // namespace

MovePreview::Stamps MovePreview::Stamps::of(const QUrl& photo, const QString& sidecar)
{
    return { FileStamp::of(photo.toLocalFile()), sidecar, sidecar.isEmpty() ? std::nullopt : FileStamp::of(sidecar) };
}

void MovePreview::take(const QUrl& photo, const MovePlan& plan, const Stamps& read)
{
    keeping += plan.kept.isEmpty() ? 0 : 1;
    if (!plan.odd.isEmpty())
        odd.append(u"%1 (%2)"_s.arg(photo.fileName(), SaveVerification::labels(plan.odd).join(u", "_s)));
    if (plan.plan.isEmpty()) {
        agreeing += plan.odd.isEmpty() ? 1 : 0;
        return;
    }
    plans.insert(photo, plan);
    stamps.insert(photo, read);
    for (auto change = plan.changes.cbegin(); change != plan.changes.cend(); ++change) {
        Row& row = fields[change.key()];
        row.gains += *change == MovePlan::Change::gains;
        row.changes += *change == MovePlan::Change::changes;
        row.loses += *change == MovePlan::Change::loses;
    }
}

void MovePreview::add(const MovePreview& other)
{
    plans.insert(other.plans);
    stamps.insert(other.stamps);
    for (auto added = other.fields.cbegin(); added != other.fields.cend(); ++added) {
        Row& row = fields[added.key()];
        row.gains += added->gains;
        row.changes += added->changes;
        row.loses += added->loses;
    }
    agreeing += other.agreeing;
    sealed += other.sealed;
    keeping += other.keeping;
    withoutSidecar += other.withoutSidecar;
    withOthersSidecar += other.withOthersSidecar;
    notRaw += other.notRaw;
    readOnly += other.readOnly;
    unreadable += other.unreadable;
    odd += other.odd;
}

QList<MovePreview::Row> MovePreview::rows() const
{
    QList<Row> rows;
    for (const QString& key : inOrder(fields.keys())) {
        rows.append(fields.value(key));
        rows.last().label = SaveVerification::labels({ key }).value(0);
    }
    return rows;
}

QStringList MovePreview::notes() const
{
    QStringList lines;
    if (keeping > 0)
        lines.append(Texts::tr("%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a "
                               "sidecar is replaced.",
            nullptr, keeping));
    if (sealed > 0)
        lines.append(CredentialsNotice::text(sealed));
    if (agreeing > 0)
        lines.append(Texts::tr("%n photo(s) (needs|need) nothing.", nullptr, agreeing));
    //: %1 names the photos
    addLine(lines, withoutSidecar, Texts::tr("%n photo(s) (has|have) no sidecar: %1", nullptr, withoutSidecar.size()));
    //: %1 names the photos
    addLine(lines, withOthersSidecar,
        Texts::tr("%n photo(s) (shares its name with a raw photo, whose sidecar it is|"
                  "share their names with raw photos, whose sidecars they are): %1",
            nullptr, withOthersSidecar.size()));
    //: %1 names the photos
    addLine(lines, notRaw, Texts::tr("%n photo(s) (is no raw photo|are no raw photos): %1", nullptr, notRaw.size()));
    //: %1 names files
    addLine(lines, readOnly, Texts::tr("Read-only, and left alone: %1"));
    //: %1 names files, with the reasons
    addLine(lines, unreadable, Texts::tr("Could not be read, and left alone: %1"));
    //: %1 names photos, with the fields
    addLine(lines, odd, Texts::tr("Not written, because it would not be the same there: %1"));
    return lines;
}

}  // namespace Quorbel
