#include "core/save/together/PhotoPlans.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/NumberCheck.h"
#include "core/iptc/StructureChange.h"
#include "core/save/SaveGuard.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/together/DateCompanions.h"
#include "core/save/together/PathHomes.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"
#include "core/tool/IptcEncoding.h"

#include <QFile>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

EditPlan PhotoPlan::expected() const
{
    EditPlan expected = plan;
    if (!lists.items.isEmpty()) {
        expected.lists = lists.items;
        expected.isExact = true;
    }
    if (plan.listMode == MetadataWriter::ListMode::append)
        expected.removed.insert(lists.takenAway);
    expected.scalars.insert(keptTexts);
    return expected;
}

EditPlan PhotoPlan::whole() const
{
    EditPlan whole = plan;
    // Of structures, which are put back with all of XMP, the tags are enough.
    for (QMap<QString, QStringList>* some : { &whole.lists, &whole.removed })
        for (auto list = some->begin(); list != some->end(); ++list)
            if (const FieldSpec* field = plan.spec(list.key()))
                for (const Assignment& assignment : lists.preparation)
                    if (field->writeTags.contains(assignment.tag))
                        list->append(assignment.value);
    return whole;
}

namespace PhotoPlans {

namespace {

// Of the fields whose own text the plan writes.
QStringList languageTags(const EditPlan& plan)
{
    QStringList tags;
    if (!plan.leftOut.contains(u"XMP"_s))
        for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
            if (const FieldSpec* field = FieldSchema::spec(it.key()); field && !field->languageTag().isEmpty())
                tags.append(field->languageTag());
    return tags;
}

bool touchesLists(const EditPlan& plan)
{
    return !plan.lists.isEmpty() || !plan.removed.isEmpty();
}

bool writesDate(const EditPlan& plan)
{
    return std::any_of(plan.scalars.keyBegin(), plan.scalars.keyEnd(),
        [](const QString& id) { return !DateCompanions::tagsOf(id).isEmpty(); });
}

// What is decided for one photo, and what of it concerns the others.
struct Decided {
    PhotoPlan photo{};
    QStringList heldLanguages{};  // tags that hold some
    bool hasErrorTag = false;
};

void takeLanguages(Decided& decided, const FileTags& held)
{
    const EditPlan& plan = decided.photo.plan;
    for (const FieldSpec& field : FieldSchema::everyField()) {
        const QString prefix = field.languageTag() + u'-';
        if (!plan.scalars.contains(field.id) || field.languageTag().isEmpty())
            continue;
        for (auto it = held.lowerBound(prefix); it != held.cend() && it.key().startsWith(prefix); ++it) {
            decided.heldLanguages.append(field.languageTag());
            const QString key = FieldLanguages::key(field.id, it.key().sliced(prefix.size()));
            const bool isEdited = std::any_of(plan.scalars.keyBegin(), plan.scalars.keyEnd(),
                [&key](const QString& other) { return other.compare(key, Qt::CaseInsensitive) == 0; });
            // An empty one could not be told from one that is gone.
            if (!isEdited && it->size() == 1 && !it->constFirst().isEmpty())
                decided.photo.keptTexts.insert(key, QString::fromUtf8(it->constFirst()));
        }
    }
}

Decided decideOne(const EditPlan& plan, const FileTags& held, const ListHomes::SeenLists& seen)
{
    Decided decided{ .photo = { .plan = plan } };
    PhotoPlan& photo = decided.photo;
    if (touchesLists(plan)) {
        const QString fileType = QString::fromUtf8(held.value(SaveUndo::typeTag()).value(0));
        photo.lists = ListHomes::change(plan, held, fileType, seen);
        if (plan.listMode == MetadataWriter::ListMode::replace) {
            photo.plan.lists = photo.lists.items;
            photo.plan.isExact = true;
        }
    }
    photo.plan.together = DateCompanions::change(plan, held);
    const QList<Assignment> paths = PathHomes::change(photo.lists.takenAway.value(FieldID::keywords), plan.paths, held);
    if (!paths.isEmpty())
        photo.plan.together.insert(FieldID::keywords, paths);
    takeLanguages(decided, held);
    decided.hasErrorTag =
        std::any_of(held.keyBegin(), held.keyEnd(), [](const QString& tag) { return tag.endsWith(u":Error"_s); });
    return decided;
}

// The tool fails where it finds nothing to copy and the file has a tag called Error.
void keepLanguages(Decided& decided, const QSet<QString>& held)
{
    QStringList kept = languageTags(decided.photo.plan);
    kept.removeIf([&held](const QString& tag) { return !held.contains(tag); });
    if (!decided.hasErrorTag || !decided.heldLanguages.isEmpty())
        decided.photo.plan.keptLanguages = kept;
}

}  // namespace

QStringList tagsBefore(const QList<EditPlan>& plans)
{
    QStringList tags;
    for (const EditPlan& plan : plans) {
        tags += JournalTags::writtenTags(plan);
        for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
            tags += DateCompanions::tagsOf(it.key());
        const bool mayTakeAway = plan.removed.contains(FieldID::keywords)
            || (plan.lists.contains(FieldID::keywords) && plan.listMode == MetadataWriter::ListMode::replace);
        if (mayTakeAway || !plan.paths.isEmpty())
            for (const KeywordPath::Home& home : KeywordPath::homes())
                tags.append(home.tag);
        // Items that only one home holds may need IPTC to be encoded anew.
        if (touchesLists(plan))
            tags.append(IptcEncoding::blockTag());
    }
    tags.removeDuplicates();
    return tags;
}

const QStringList& allTags()
{
    static const QStringList tags = [] {
        EditPlan plan{ .customs = { { u"Any"_s, {} } } };
        for (const FieldSpec& field : FieldSchema::all()) {
            if (field.isList())
                plan.lists.insert(field.id, {});
            else
                plan.scalars.insert(field.id, {});
        }
        return tagsBefore({ plan });
    }();
    return tags;
}

bool needLook(const QList<EditPlan>& plans)
{
    return std::any_of(plans.cbegin(), plans.cend(), [](const EditPlan& plan) {
        return touchesLists(plan) || !plan.paths.isEmpty() || writesDate(plan) || !languageTags(plan).isEmpty();
    });
}

QStringList structuresOf(const QList<EditPlan>& plans)
{
    QStringList ids;
    for (const EditPlan& plan : plans)
        if (!plan.leftOut.contains(u"XMP"_s))
            for (const QString& id : plan.scalars.keys() + plan.iptcLists.keys())
                if (const FieldSpec* field = IptcSchema::spec(id);
                    field && field->kind == FieldKind::structure && !ids.contains(id))
                    ids.append(id);
    return ids;
}

void decideStructures(PhotoPlan& photo, const IptcValues& held)
{
    for (const QString& id : structuresOf({ photo.plan })) {
        const FieldSpec& field = *IptcSchema::spec(id);
        ListChange wanted = photo.plan.iptcLists.value(id);
        if (const auto text = photo.plan.scalars.constFind(id); text != photo.plan.scalars.cend())
            wanted.whole = QStringList(*text);
        // What the photo holds stays, and is not what was wanted.
        if (const QStringList items = wanted.whole.value_or(held.structures(id)) + wanted.added;
            !NumberCheck::problem(field, wanted.whole.value_or(QStringList()) + wanted.added).isEmpty()) {
            photo.plan.together.insert(id, {});
            photo.structures.insert(id, items);
            continue;
        }
        const StructureChange change = StructureChange::of(field, held.structures(id), wanted);
        if (!change.problem.isEmpty())
            photo.problem = change.problem;
        photo.plan.together.insert(id, change.assignments);
        photo.structures.insert(id, change.expected);
    }
}

QHash<QUrl, PhotoPlan> decide(const QList<QUrl>& targets, const std::function<EditPlan(const QUrl&)>& planOf,
    const std::optional<OldValues>& before, const QHash<QUrl, ListHomes::SeenLists>& seen)
{
    const QList<QUrl> files = SaveGuard::filesBehindLinks(targets);
    QHash<QUrl, Decided> decided;
    QSet<QString> held;
    for (qsizetype i = 0; i < targets.size(); ++i) {
        const EditPlan plan = planOf(targets.at(i));
        const FileTags tags = before ? before->value(QFile::encodeName(files.at(i).toLocalFile())) : FileTags();
        Decided one =
            tags.isEmpty() ? Decided{ .photo = { .plan = plan } } : decideOne(plan, tags, seen.value(targets.at(i)));
        const QStringList languages = before ? one.heldLanguages : languageTags(plan);
        held.unite(QSet<QString>(languages.cbegin(), languages.cend()));
        decided.insert(targets.at(i), std::move(one));
    }
    QHash<QUrl, PhotoPlan> photos;
    for (auto it = decided.begin(); it != decided.end(); ++it) {
        keepLanguages(*it, held);
        photos.insert(it.key(), it->photo);
    }
    return photos;
}

}  // namespace PhotoPlans

}  // namespace Quorbel
