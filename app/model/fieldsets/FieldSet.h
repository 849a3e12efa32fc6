// A named choice of the fields that are on screen at once, some of which are wanted: a photo without them is not done.
// Thread: any. A plain value with pure functions.
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Quorbel {

struct FieldSet {
    QString name{};
    QStringList fields{};  ///< ids, in the order of the form
    QSet<QString> wanted{};  ///< some of them
    bool operator==(const FieldSet&) const = default;
};

namespace FieldSetTexts {

/// Ids of all fields in the order in which the form shows them.
const QStringList& formOrder();
/// Those that come with the program; the usual form is none of them.
const QList<FieldSet>& builtIn();
/// With its fields in the order of the form, each once, and nothing wanted that is none of them.
FieldSet ordered(FieldSet set);
/// What a setting holds of them, and back; of a text that is none, and of entries that make no sense, nothing.
QString toText(const QList<FieldSet>& sets);
QList<FieldSet> fromText(const QString& text);

}  // namespace FieldSetTexts

}  // namespace Quorbel
