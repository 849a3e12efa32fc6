#include "ui/sidebar/FilterTexts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<FilterText>& FilterTexts::gaps()
{
    static const QList<FilterText> texts{
        { PhotoTrait::noTitle, u"Title"_s, u"No title"_s },
        { PhotoTrait::noDescription, u"Description"_s, u"No description"_s },
        { PhotoTrait::noKeywords, u"Keywords"_s, u"No keywords"_s },
        { PhotoTrait::noDate, u"Date taken"_s, u"No date taken"_s },
        { PhotoTrait::noPlace, u"Place"_s, u"No place"_s },
        { PhotoTrait::noCreator, u"Creator"_s, u"No creator"_s },
        { PhotoTrait::noCopyright, u"Copyright"_s, u"No copyright"_s },
    };
    return texts;
}

const FilterText& FilterTexts::unrated()
{
    static const FilterText text{ PhotoTrait::unrated, u"Unrated"_s, u"Unrated"_s };
    return text;
}

const QList<FilterText>& FilterTexts::states()
{
    static const QList<FilterText> texts{
        { PhotoTrait::edited, u"Edited, not saved"_s, u"Edited, not saved"_s },
        { PhotoTrait::changed, u"Changed since opened"_s, u"Changed since opened"_s },
        { PhotoTrait::disagreement, u"Places differ"_s, u"Places differ"_s },
    };
    return texts;
}

QString FilterTexts::clearTitle()
{
    return u"Clear filters"_s;
}

QString FilterTexts::name()
{
    return u"Filter images"_s;
}

QString FilterTexts::stars(int least)
{
    return (least == 1 ? u"At least %1 star"_s : u"At least %1 stars"_s).arg(least);
}

QString FilterTexts::contains(const QString& text)
{
    return u"Contains “%1”"_s.arg(text);
}

}  // namespace Quorbel
