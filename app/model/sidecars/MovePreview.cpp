#include "app/model/sidecars/MovePreview.h"

#include "app/model/iptc/CredentialsNotice.h"
#include "core/language/Texts.h"
#include "core/save/SaveVerification.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString photosText(qsizetype count, const QString& one, const QString& many)
{
    return count == 1 ? Texts::tr("1 photo ") + one : Texts::tr("%1 photos ").arg(count) + many;
}

void addLine(QStringList& lines, const QStringList& names, const QString& one, const QString& many)
{
    if (!names.isEmpty())
        lines.append(photosText(names.size(), one, many) + u": "_s + Text::listed(names));
}

void addFiles(QStringList& lines, const QStringList& names, const QString& what)
{
    if (!names.isEmpty())
        lines.append(what + u": "_s + Text::listed(names));
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
        lines.append(photosText(keeping, u"keeps"_s, u"keep"_s)
            + Texts::tr(" what the sidecar holds otherwise than the file: nothing in a sidecar is replaced."));
    if (sealed > 0)
        lines.append(CredentialsNotice::text(sealed));
    if (agreeing > 0)
        lines.append(
            agreeing == 1 ? Texts::tr("1 photo needs nothing.") : Texts::tr("%1 photos need nothing.").arg(agreeing));
    addLine(lines, withoutSidecar, Texts::tr("has no sidecar"), Texts::tr("have no sidecar"));
    addLine(lines, withOthersSidecar, Texts::tr("shares its name with a raw photo, whose sidecar it is"),
        Texts::tr("share their names with raw photos, whose sidecars they are"));
    addLine(lines, notRaw, Texts::tr("is no raw photo"), Texts::tr("are no raw photos"));
    addFiles(lines, readOnly, Texts::tr("Read-only, and left alone"));
    addFiles(lines, unreadable, Texts::tr("Could not be read, and left alone"));
    addFiles(lines, odd, Texts::tr("Not written, because it would not be the same there"));
    return lines;
}

}  // namespace Quorbel
