#include "ui/sidebar/FilterTexts.h"

#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<FilterText>& FilterTexts::gaps()
{
    static const QList<FilterText> texts{
        { PhotoTrait::noTitle, Texts::tr("Title"), Texts::tr("No title") },
        { PhotoTrait::noDescription, Texts::tr("Description"), Texts::tr("No description") },
        { PhotoTrait::noKeywords, Texts::tr("Keywords"), Texts::tr("No keywords") },
        { PhotoTrait::noDate, Texts::tr("Date taken"), Texts::tr("No date taken") },
        { PhotoTrait::noPlace, Texts::tr("Place"), Texts::tr("No place") },
        { PhotoTrait::noCreator, Texts::tr("Creator"), Texts::tr("No creator") },
        { PhotoTrait::noCopyright, Texts::tr("Copyright"), Texts::tr("No copyright") },
    };
    return texts;
}

const FilterText& FilterTexts::unrated()
{
    static const FilterText text{ PhotoTrait::unrated, Texts::tr("Unrated"), Texts::tr("Unrated") };
    return text;
}

const QList<FilterText>& FilterTexts::states()
{
    static const QList<FilterText> texts{
        { PhotoTrait::edited, Texts::tr("Edited, not saved"), Texts::tr("Edited, not saved") },
        { PhotoTrait::changed, Texts::tr("Changed since opened"), Texts::tr("Changed since opened") },
        { PhotoTrait::disagreement, Texts::tr("Places differ"), Texts::tr("Places differ") },
    };
    return texts;
}

QString FilterTexts::clearTitle()
{
    return Texts::tr("Clear filters");
}

QString FilterTexts::name()
{
    return Texts::tr("Filter images");
}

QString FilterTexts::stars(int least)
{
    return Texts::tr("At least %n star(s)", nullptr, least);
}

QString FilterTexts::contains(const QString& text)
{
    //: A filter of photos. %1: what was typed.
    return Texts::tr("Contains “%1”").arg(text);
}

}  // namespace Quorbel
