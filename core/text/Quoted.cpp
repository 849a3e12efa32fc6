#include "core/text/Quoted.h"

#include "core/language/Texts.h"

namespace Quorbel::Text {

QString quoted(const QString& text)
{
    //: quotation marks around a name or a text that the user typed
    return Texts::tr("“%1”").arg(text);
}

}  // namespace Quorbel::Text
