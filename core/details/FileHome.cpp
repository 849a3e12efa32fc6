#include "core/details/FileHome.h"

namespace Quorbel::FileHome {

using namespace Qt::StringLiterals;

namespace {

// In no tag.
QString mark()
{
    return u": "_s;
}

}  // namespace

FieldHome of(FieldHome home)
{
    home.tag.prepend(mark());
    home.isForeign = true;
    return home;
}

bool is(const FieldHome& home)
{
    return home.tag.contains(mark());
}

FieldHome named(FieldHome home, const QString& fileName)
{
    if (home.tag.startsWith(mark()))
        home.tag.prepend(fileName);
    return home;
}

}  // namespace Quorbel::FileHome
