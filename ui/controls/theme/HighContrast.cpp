#include "ui/controls/theme/HighContrast.h"

#include "ui/controls/theme/Theme.h"

namespace Quorbel::HighContrast {

bool isOn(const Theme& theme)
{
    return theme == palette(theme.isDark);
}

qreal disabledOpacity(const Theme& theme, qreal usual)
{
    return isOn(theme) ? .65 : usual;
}

qreal markedLine(const Theme& theme)
{
    return isOn(theme) ? 2 : 1;
}

QPen groundEdge(const Theme& theme)
{
    return isOn(theme) ? QPen(theme.text, 1) : QPen(Qt::NoPen);
}

}  // namespace Quorbel::HighContrast
