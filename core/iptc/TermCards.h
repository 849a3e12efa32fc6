// Terms of the standard's vocabularies as structures: a genre or a topic as a CV-term, a region's kind and role.
// Thread: any. Pure.
#pragma once

#include <QList>
#include <QString>

namespace Quorbel {

/// What a structure of a field may be given.
struct TermOffer {
    QString action{};  ///< "Choose Genre…"
    QString vocabulary{};  ///< a Vocabulary's id
    QString member{};  ///< a list of entities that gains the term; "": the structure is the term
    bool operator==(const TermOffer&) const = default;
};

namespace TermCards {

/// None for fields whose structures have nothing to do with these vocabularies.
QList<TermOffer> offers(const QString& fieldId);
/// The structure with the term; what else is in it stays. A term whose address nobody knows is given by its name.
QString withTerm(const TermOffer& offer, const QString& structure, const QString& code);

}  // namespace TermCards

}  // namespace Quorbel
