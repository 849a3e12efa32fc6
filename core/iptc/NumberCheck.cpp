#include "core/iptc/NumberCheck.h"

#include "core/iptc/StructureEdit.h"
#include "core/language/Texts.h"
#include "core/schema/FieldCheck.h"

namespace Quorbel::NumberCheck {

using namespace Qt::StringLiterals;

namespace {

QString told(const QString& note, const QString& text)
{
    return note.isEmpty() ? QString() : note.left(1).toLower() + note.sliced(1) + u": “%1”"_s.arg(text);
}

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
                if (const QString problem = told(StructureEdit::note(member, item), item); !problem.isEmpty())
                    return Texts::tr("%1 is %2").arg(member.label, problem);
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
        else if (field.kind == FieldKind::number)
            problem = told(FieldCheck::note(field, text), text);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

}  // namespace Quorbel::NumberCheck
