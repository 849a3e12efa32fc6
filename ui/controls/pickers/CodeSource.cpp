#include "ui/controls/pickers/CodeSource.h"

namespace Quorbel {

QString CodeSource::known(const QString& code) const
{
    if (code.isEmpty())
        return {};
    if (nameOf)
        return nameOf(code);
    if (rows)
        for (const CodeRow& row : rows({}))
            if (row.code == code)
                return row.name;
    return {};
}

QString CodeSource::shown(const QString& code) const
{
    const QString name = known(code);
    return name.isEmpty() ? code : name;
}

}  // namespace Quorbel
