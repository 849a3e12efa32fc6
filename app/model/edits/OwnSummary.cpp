#include "app/model/edits/OwnSummary.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/text/Quoted.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// What is collected of one field.
struct Found {
    int photos = 0;
    QSet<QString> texts{};
};

void collect(QHash<QString, Found>& found, const OwnEdits& one)
{
    const auto addText = [&found](const QString& key, const QString& text) {
        Found& field = found[key];
        ++field.photos;
        field.texts.insert(text);
    };
    for (auto text = one.scalars.cbegin(); text != one.scalars.cend(); ++text)
        addText(text.key(), *text);
    for (const CustomValue& custom : one.customs)
        addText(CustomFields::key(custom.name), custom.value);
    for (auto list = one.added.cbegin(); list != one.added.cend(); ++list)
        ++found[list.key()].photos;
    for (auto list = one.removed.cbegin(); list != one.removed.cend(); ++list)
        if (!one.added.contains(list.key()))
            ++found[list.key()].photos;
}

}  // namespace

QMap<QString, OwnSummary> OwnSummary::of(const QHash<QUrl, OwnEdits>& own)
{
    QHash<QString, Found> found;
    for (const OwnEdits& one : own)
        collect(found, one);
    QMap<QString, OwnSummary> summaries;
    for (auto field = found.cbegin(); field != found.cend(); ++field)
        summaries.insert(field.key(),
            { .photos = field->photos,
                .texts = int(field->texts.size()),
                .text = field->texts.size() == 1 ? *field->texts.cbegin() : QString() });
    return summaries;
}

QString OwnSummary::told(qsizetype selected) const
{
    QString what = Texts::tr("different items");
    if (texts > 1)
        what = Texts::tr("%n different texts", nullptr, texts);
    else if (texts == 1)
        //: said of a field whose text is taken away
        what = text.isEmpty() ? Texts::tr("emptied") : Text::quoted(text);
    if (photos == selected && texts > 1)
        return what;
    //: %1 is what stands in a field ("3 different texts"), %2 and %3 count photos: "“Zoë” in 2 of 12"
    return Texts::tr("%1 in %2 of %3").arg(what, QString::number(photos), QString::number(selected));
}

}  // namespace Quorbel
