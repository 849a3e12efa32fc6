#include "core/words/PasteSummary.h"

#include "core/iptc/ShownText.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"

#include <algorithm>

namespace Quorbel::PasteSummary {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostOfOld = 60;  // characters of an old text that a line repeats

// What one sees of a photo, with what is unsaved of it.
class Seen {
public:
    Seen(const Photo& photo, const Edits& unsaved)
        : m_photo(photo)
        , m_unsaved(unsaved)
        , m_own(unsaved.own.value(photo.record.url))
    {
    }

    // Nothing where it is not known.
    std::optional<QString> text(const QString& key) const
    {
        if (const auto name = CustomFields::nameIn(key))
            return custom(*name);
        for (const auto* edited : { &m_own.scalars, &m_unsaved.scalars })
            if (const auto text = edited->constFind(key); text != edited->cend())
                return *text;
        if (!PhotoDetails::hold(key))
            return m_photo.record.values.value(key);
        return m_photo.details ? std::optional(m_photo.details->texts.value(key)) : std::nullopt;
    }

    QStringList items(const QString& id) const
    {
        const bool isBeside = PhotoDetails::hold(id) && m_photo.details;
        const QStringList held = isBeside ? m_photo.details->lists.value(id) : m_photo.record.lists.value(id);
        QStringList items = m_unsaved.lists.value(id, held);
        items += m_unsaved.added.value(id) + m_own.added.value(id);
        const QStringList gone = m_unsaved.removed.value(id) + m_own.removed.value(id);
        items.removeIf([&gone](const QString& item) { return gone.contains(item); });
        return items;
    }

    bool hasPaths(const QStringList& paths) const
    {
        return !m_photo.details || std::all_of(paths.cbegin(), paths.cend(), [this](const QString& path) {
            return m_photo.details->paths.contains(path) || m_unsaved.paths.contains(path);
        });
    }

private:
    QString custom(const QString& name) const
    {
        for (const auto* values : { &m_own.customs, &m_unsaved.customs, &m_photo.record.custom })
            for (const CustomValue& value : *values)
                if (value.name.compare(name, Qt::CaseInsensitive) == 0)
                    return value.value;
        return {};
    }

    const Photo& m_photo;
    const Edits& m_unsaved;
    const OwnEdits m_own;
};

QString textOf(const CopiedFields& fields, const QString& key)
{
    const auto name = CustomFields::nameIn(key);
    const qsizetype i = name ? CustomFields::indexOf(fields.edits.customs, *name) : -1;
    return i >= 0 ? fields.edits.customs.at(i).value : fields.edits.scalars.value(key);
}

void countText(PasteCount& count, const std::optional<QString>& held, const QString& text)
{
    if (!held)
        ++count.unknown;
    else if (held->isEmpty())
        ++count.filled;
    else if (*held == text)
        ++count.same;
    else if (++count.replaced == 1)
        count.old = held;
    else if (count.old != held)
        count.old.reset();
}

void countItems(PasteCount& count, const QString& id, const QStringList& held, const QStringList& items, bool hasPaths)
{
    const bool hasAll =
        std::all_of(items.cbegin(), items.cend(), [&held](const QString& item) { return held.contains(item); });
    if (hasAll && hasPaths)
        ++count.same;
    else if (held.isEmpty())
        ++count.filled;
    else
        ++count.gained;
    count.old = count.photos() == 1 ? std::optional(ShownText::of(id, held)) : std::nullopt;
}

// "titles": what one counts several of. "" where the field's name has no usual plural.
QString plural(const QString& key)
{
    static const QMap<QString, QString> plurals{ { FieldID::title, u"titles"_s },
        { FieldID::description, u"descriptions"_s }, { FieldID::creator, u"creators"_s },
        { FieldID::place, u"places"_s }, { FieldID::headline, u"headlines"_s }, { FieldID::event, u"events"_s } };
    const auto language = FieldLanguages::languageIn(key);
    const QString id = language ? language->field->id : key;
    const FieldSpec* field = FieldSchema::spec(id);
    return field && field->kind == FieldKind::date ? u"dates"_s : plurals.value(id);
}

QString quoted(const QString& text)
{
    const QString line = text.simplified();
    return u'“' + (line.size() > mostOfOld ? line.left(mostOfOld) + u'…' : line) + u'”';
}

QString replacedPart(const QString& key, const PasteCount& count)
{
    // A number among numbers would only confuse.
    const FieldSpec* field = FieldSchema::spec(key);
    const bool isWords = !field || field->kind == FieldKind::text || field->kind == FieldKind::multiline;
    if (count.old && (isWords || count.photos() == 1))
        return count.photos() == 1 ? Texts::tr("replace ") + quoted(ShownText::of(key, *count.old))
                                   : Texts::tr("replace %1 in %2").arg(quoted(*count.old)).arg(count.replaced);
    const QString things = plural(key);
    const QString number = QString::number(count.replaced);
    return Texts::tr("replace ") + (things.isEmpty() ? number : number + u' ' + things);
}

QString gainedPart(const QString& key, const PasteCount& count)
{
    const int photos = count.gained + count.filled;
    if (count.photos() == 1)
        return count.filled > 0 ? Texts::tr("fill the empty field")
                                : Texts::tr("add to “%1”").arg(count.old.value_or(QString()));
    return Texts::tr("add to the %1 of %2").arg(labelOfKey(key).toLower()).arg(photos);
}

// "replaces" where it is done, "replace" where it would be.
QString inFact(const QString& part)
{
    const qsizetype space = part.indexOf(u' ');
    return part.left(space) + u's' + part.mid(space);
}

QString capitalized(const QString& text)
{
    return text.left(1).toUpper() + text.mid(1);
}

}  // namespace

QMap<QString, PasteCount> counts(const CopiedFields& fields, const Edits& unsaved, const QList<Photo>& photos)
{
    QMap<QString, PasteCount> counts;
    const QStringList keys = fields.keys();
    for (const Photo& photo : photos) {
        const Seen seen(photo, unsaved);
        for (const QString& key : keys) {
            PasteCount& count = counts[key];
            if (const auto items = fields.edits.added.constFind(key); items != fields.edits.added.cend())
                countItems(
                    count, key, seen.items(key), *items, key != FieldID::keywords || seen.hasPaths(fields.edits.paths));
            else
                countText(count, seen.text(key), textOf(fields, key));
        }
    }
    return counts;
}

QString line(const QString& key, const PasteCount& count, bool isTicked)
{
    const FieldSpec* field = FieldSchema::spec(key);
    QStringList parts;
    if (field && field->isList()) {
        if (count.gained + count.filled > 0)
            parts.append(gainedPart(key, count));
    } else {
        if (count.replaced > 0)
            parts.append(replacedPart(key, count));
        if (count.filled > 0)
            parts.append(
                count.photos() == 1 ? Texts::tr("fill the empty field") : Texts::tr("fill %1").arg(count.filled));
    }
    QStringList told;
    for (const QString& part : parts)
        told.append(isTicked ? inFact(part) : told.isEmpty() ? Texts::tr("would ") + part : part);
    if (count.same > 0)
        told.append(count.photos() == 1 ? Texts::tr("the same already") : Texts::tr("same in %1").arg(count.same));
    if (count.unknown > 0)
        told.append(count.photos() == 1 ? Texts::tr("not looked at yet")
                                        : Texts::tr("%1 not looked at yet").arg(count.unknown));
    return capitalized(told.join(u", "_s));
}

QString shownValue(const CopiedFields& fields, const QString& key)
{
    if (const auto items = fields.edits.added.constFind(key); items != fields.edits.added.cend())
        return ShownText::of(key, *items);
    return ShownText::of(key, textOf(fields, key)).simplified();
}

QStringList lineKeys(const CopiedFields& fields)
{
    const auto rank = [](const QString& key) {
        const auto language = FieldLanguages::languageIn(key);
        const FieldSpec* field = language ? language->field : FieldSchema::spec(key);
        if (!field || !field->alwaysShown)
            return 2;
        return isTickedAtFirst(key) ? 0 : 1;
    };
    QStringList keys = fields.keys();
    std::stable_sort(
        keys.begin(), keys.end(), [&rank](const QString& a, const QString& b) { return rank(a) < rank(b); });
    return keys;
}

bool isTickedAtFirst(const QString& key)
{
    const FieldSpec* field = FieldSchema::spec(key);
    return !field
        || (field->kind != FieldKind::date && field->kind != FieldKind::offset
            && field->kind != FieldKind::coordinates);
}

}  // namespace Quorbel::PasteSummary
