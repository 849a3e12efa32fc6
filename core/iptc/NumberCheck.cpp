#include "core/iptc/NumberCheck.h"

#include "core/iptc/StructureEdit.h"
#include "core/language/Texts.h"
#include "core/schema/FieldCheck.h"

namespace Quorbel::NumberCheck {

using namespace Qt::StringLiterals;

namespace {

// Of the first member that should be a number and is none, with its name; "" where there is none.
QString problemIn(const StructureSpec& structure, const QString& text)
{
    for (const StructureMember& member : structure.members) {
        if (const StructureSpec* inner = IptcStructures::spec(member.structure)) {
            for (const QString& item : StructureEdit::structures(text, member.name))
                if (const QString problem = problemIn(*inner, item); !problem.isEmpty())
                    return problem;
        } else if (member.kind == FieldKind::number) {
            for (const QString& item : StructureEdit::texts(text, member.name))
                if (!StructureEdit::note(member, item).isEmpty())
                    //: %1 is what the number tells ("Latitude"), %2 what stands there instead
                    return Texts::tr("%1 is not a number: “%2”").arg(Texts::shown(member.label), item);
        }
    }
    return {};
}

}  // namespace

QString problem(const FieldSpec& field, const QStringList& texts)
{
    const StructureSpec* structure = IptcStructures::spec(field.structure);
    for (const QString& text : texts) {
        QString problem;
        if (structure)
            problem = problemIn(*structure, text);
        else if (field.kind == FieldKind::number && !FieldCheck::note(field, text).isEmpty())
            problem = Texts::tr("not a whole number: “%1”").arg(text);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

}  // namespace Quorbel::NumberCheck
