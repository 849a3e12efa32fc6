#include "ui/inspector/iptc/VocabularySource.h"

#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

CodeSource vocabularySource(const QString& id)
{
    CodeSource source;
    source.rows = [id](const QString& typed) {
        QList<CodeRow> rows;
        const QList<const VocabularyTerm*> terms = Vocabularies::search(id, typed);
        for (const VocabularyTerm* term : terms)
            rows.append({ term->code, Texts::shown(term->name), Texts::shown(term->note) });
        return rows;
    };
    source.nameOf = [id](const QString& code) {
        const VocabularyTerm* term = Vocabularies::term(id, code);
        return term ? Texts::shown(term->name) : QString();
    };
    //: Under the terms of a vocabulary: files hold a term's code, not its name.
    source.footer = Texts::tr("stored as a code");
    return source;
}

}  // namespace Quorbel
