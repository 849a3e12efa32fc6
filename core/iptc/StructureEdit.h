// What somebody does to a structure in the form of StructureText. Whatever else is in it stays, also what the table
// does not know. Thread: any. Pure.
#pragma once

#include "core/iptc/IptcStructures.h"

#include <QJsonValue>

namespace Quorbel::StructureEdit {

/// With this member set, or taken away where the value is empty; in a language it is called "AOTitle-de".
QString with(const QString& text, const QString& member, const QJsonValue& value);
/// The texts of a member, be it one or several.
QStringList texts(const QString& text, const QString& member);
/// The structures of a member, be it one or several.
QStringList structures(const QString& text, const QString& member);
/// Of a member that holds one structure, the first.
QString withStructures(const QString& text, const StructureMember& member, const QStringList& structures);
/// The languages that a member has texts in, beside the plain one, in alphabetical order.
QStringList languages(const QString& text, const QString& member);

/// Whether both hold the same in this member.
bool isSame(const QString& a, const QString& b, const QString& member);
/// Of each item which of those that were held it is now: as it was, or the one that it has most members in common with.
/// -1 for one that is like none of them.
QList<qsizetype> origins(const QStringList& items, const QStringList& held);

/// What somebody is told who typed no date or number into such a member. A year, or a year and a month, is a date.
QString note(const StructureMember& member, const QString& text);

}  // namespace Quorbel::StructureEdit
