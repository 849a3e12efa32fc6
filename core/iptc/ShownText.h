// What one reads of the value of any field, where it is told and not edited: codes by their names, structures by what
// heads them.
// Thread: any. Pure.
#pragma once

#include <QString>
#include <QStringList>

namespace Quorbel::ShownText {

/// `key` is an id of a field, or the key of anything else that has texts. Most texts are shown as they are.
QString of(const QString& key, const QString& text);
/// Of a list: "Kyoto, Japan · 1 more" of structures, else its items with commas between them.
QString of(const QString& id, const QStringList& items);

}  // namespace Quorbel::ShownText
