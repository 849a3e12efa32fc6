// A structure of IptcStructures as one text, the form in which edits carry it and observers compare it: a JSON object
// in one line, members by ExifTool's names, in alphabetical order, without empty ones. Values are texts, numbers too;
// members that hold several are arrays; structures within are objects. Members that the table does not know stay in it,
// as they were read: a save must know that they are there.
// Thread: any. Pure.
#pragma once

#include "core/iptc/IptcStructures.h"
#include "core/text/JSONValue.h"

#include <QJsonObject>

namespace Quorbel::StructureText {

/// Of what the tool reads (by number, with "-struct"): days come as 1889-06-02.
QString fromRead(const StructureSpec& structure, const JSONObject& members);
/// In the one form; members without content are left out. "" when nothing is left.
QString of(const QJsonObject& members);
/// The same of a text that somebody else may have made; "" for one that is no JSON object.
QString tidied(const QString& text);
/// Nothing is in it for "" and for what is no JSON object.
QJsonObject members(const QString& text);
/// One member's text: of several the texts with a comma between them, of a structure its title.
QString memberText(const StructureSpec& structure, const QString& text, const QString& member);

/// "{City=Kyoto,LocationId=[a,b]}", as ExifTool takes it; without members that the table does not know. "" when that
/// leaves nothing.
QString argument(const StructureSpec& structure, const QString& text);
/// Names of members, of structures within too ("RegionBoundary.RbColor"), that the table does not know.
QStringList foreignMembers(const StructureSpec& structure, const QString& text);
/// Whether both hold the same; numbers as far as files keep them.
bool isSame(const StructureSpec& structure, const QString& a, const QString& b);
bool areSame(const StructureSpec& structure, const QStringList& a, const QStringList& b);

/// What heads a card: the first of its title members that is there ("Kyoto"), else the first text in it.
QString title(const StructureSpec& structure, const QString& text);
/// Further title members, with a comma between them: "Kyoto Prefecture, Japan".
QString subtitle(const StructureSpec& structure, const QString& text);
/// One line for all: "Kyoto, Japan · 1 more".
QString summary(const StructureSpec& structure, const QStringList& items);

}  // namespace Quorbel::StructureText
