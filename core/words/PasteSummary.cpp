#include "core/words/PasteSummary.h"

#include "core/iptc/ShownText.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Quoted.h"

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

// "4 titles": how many texts would go; the number alone where the field's name has no usual plural.
QString counted(const QString& key, int count)
{
    const auto language = FieldLanguages::languageIn(key);
    const QString id = language ? language->field->id : key;
    if (const FieldSpec* field = FieldSchema::spec(id); field && field->kind == FieldKind::date)
        return Texts::tr("%n date(s)", nullptr, count);
    if (id == FieldID::title)
        return Texts::tr("%n title(s)", nullptr, count);
    if (id == FieldID::description)
        return Texts::tr("%n description(s)", nullptr, count);
    if (id == FieldID::creator)
        return Texts::tr("%n creator(s)", nullptr, count);
    if (id == FieldID::place)
        return Texts::tr("%n place(s)", nullptr, count);
    if (id == FieldID::headline)
        return Texts::tr("%n headline(s)", nullptr, count);
    return id == FieldID::event ? Texts::tr("%n event(s)", nullptr, count) : QString::number(count);
}

QString quoted(const QString& text)
{
    const QString line = text.simplified();
    return Text::quoted(line.size() > mostOfOld ? line.left(mostOfOld) + u'…' : line);
}

// "4 titles", "“Old one” in 3": what would go.
QString replaced(const QString& key, const PasteCount& count)
{
    // A number among numbers would only confuse.
    const FieldSpec* field = FieldSchema::spec(key);
    const bool isWords = !field || field->kind == FieldKind::text || field->kind == FieldKind::multiline;
    if (!count.old || (!isWords && count.photos() > 1))
        return counted(key, count.replaced);
    if (count.photos() == 1)
        return quoted(ShownText::of(key, *count.old));
    //: %1 is a text in quotation marks that would go, %n the number of photos that hold it: "“Old one” in 3"
    return Texts::tr("%1 in %n", nullptr, count.replaced).arg(quoted(*count.old));
}

QString filledPart(const PasteCount& count, bool isTicked)
{
    if (count.photos() == 1)
        return isTicked ? Texts::tr("fills the empty field") : Texts::tr("would fill the empty field");
    //: %n is the number of photos that have nothing in the field
    return isTicked ? Texts::tr("fills %n", nullptr, count.filled)
                    //: %n is the number of photos that have nothing in the field
                    : Texts::tr("would fill %n", nullptr, count.filled);
}

QString gainedPart(const QString& key, const PasteCount& count, bool isTicked)
{
    const int photos = count.gained + count.filled;
    if (count.photos() == 1 && count.filled > 0)
        return filledPart(count, isTicked);
    if (count.photos() == 1) {
        const QString old = count.old.value_or(QString());
        //: %1 is what a list holds: items are added
        return isTicked ? Texts::tr("adds to “%1”").arg(old) : Texts::tr("would add to “%1”").arg(old);
    }
    //: %1 is a field that holds a list ("keywords"), %n a number of photos
    const QString told = isTicked ? Texts::tr("adds to the %1 of %n", nullptr, photos)
                                  //: %1 is a field that holds a list ("keywords"), %n a number of photos
                                  : Texts::tr("would add to the %1 of %n", nullptr, photos);
    return told.arg(Texts::inSentence(labelOfKey(key)));
}

QString textPart(const QString& key, const PasteCount& count, bool isTicked)
{
    if (count.replaced == 0)
        return filledPart(count, isTicked);
    const QString old = replaced(key, count);
    if (count.filled == 0)
        //: %1 is what would go: "4 titles", or a text in quotation marks
        return isTicked ? Texts::tr("replaces %1").arg(old) : Texts::tr("would replace %1").arg(old);
    //: %1 is what would go ("4 titles"), %n the number of photos that have nothing in the field
    const QString told = isTicked ? Texts::tr("replaces %1, fills %n", nullptr, count.filled)
                                  //: %1 is what would go ("4 titles"), %n a number of photos that have nothing there
                                  : Texts::tr("would replace %1, fill %n", nullptr, count.filled);
    return told.arg(old);
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
    QStringList told;
    if (field && field->isList() && count.gained + count.filled > 0)
        told.append(gainedPart(key, count, isTicked));
    else if (!(field && field->isList()) && count.replaced + count.filled > 0)
        told.append(textPart(key, count, isTicked));
    if (count.same > 0)
        //: %n is the number of photos that hold just the text
        told.append(count.photos() == 1 ? Texts::tr("the same already") : Texts::tr("same in %n", nullptr, count.same));
    if (count.unknown > 0)
        //: %n is a number of photos
        told.append(count.photos() == 1 ? Texts::tr("not looked at yet")
                                        : Texts::tr("%n not looked at yet", nullptr, count.unknown));
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
