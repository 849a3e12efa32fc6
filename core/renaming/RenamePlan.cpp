#include "core/renaming/RenamePlan.h"

#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

QString RenameRow::words() const
{
    switch (obstacle) {
    case Obstacle::slash:
        return Texts::tr("a file name cannot hold “/”");
    case Obstacle::tooLong:
        return Texts::tr("too long for a file name");
    case Obstacle::readOnlyFolder:
        return Texts::tr("its folder is read-only");
    case Obstacle::gone:
        return Texts::tr("not there any more");
    case Obstacle::none:
        break;
    }
    QStringList words;
    if (!missing.isEmpty())
        //: %1 is a file's name: what is said of a photo that lacks a value
        words.append(isUnchanged() ? Texts::tr("stays %1").arg(newName) : Texts::tr("becomes %1").arg(newName));
    if (number > 0)
        //: %1 is the number that was put behind the name
        words.append(Texts::tr("name taken, so -%1").arg(number));
    if (words.isEmpty() && !along.isEmpty())
        //: %1 are files that are renamed along with the photo
        words.append(Texts::tr("with %1").arg(along.join(u", "_s)));
    return words.join(u"; "_s);
}

}  // namespace Quorbel
