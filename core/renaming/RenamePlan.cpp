#include "core/renaming/RenamePlan.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

QString RenameRow::words() const
{
    switch (obstacle) {
    case Obstacle::slash:
        return u"a file name cannot hold “/”"_s;
    case Obstacle::tooLong:
        return u"too long for a file name"_s;
    case Obstacle::readOnlyFolder:
        return u"its folder is read-only"_s;
    case Obstacle::gone:
        return u"not there any more"_s;
    case Obstacle::none:
        break;
    }
    QStringList words;
    if (!missing.isEmpty())
        words.append(isUnchanged() ? u"stays %1"_s.arg(newName) : u"becomes %1"_s.arg(newName));
    if (number > 0)
        words.append(u"name taken, so -%1"_s.arg(number));
    if (words.isEmpty() && !along.isEmpty())
        words.append(u"with %1"_s.arg(along.join(u", "_s)));
    return words.join(u"; "_s);
}

}  // namespace Quorbel
