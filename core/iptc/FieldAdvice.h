// What is worth a second look in the values of IptcSchema's fields though nothing is wrong with them, and which fields
// belong together. FieldCheck tells of what is wrong.
// Thread: any. Pure.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace Quorbel::FieldAdvice {

/// Alternative text is read aloud in one go: so many characters, as they are seen, are plenty.
constexpr int altTextLength = 250;

/// In one line; "" when there is nothing to say. `key`: a field's id, or the key of one of its languages. `isEmpty`:
/// whether another field holds nothing.
QString note(const QString& key, const QString& value, const std::function<bool(const QString& id)>& isEmpty);
/// Fields that one wants to see beside this one with this value: what made the picture, of one that an AI made.
QStringList companions(const QString& id, const QString& value);
/// The field that has companions.
QString companionsOf(const QString& id);

}  // namespace Quorbel::FieldAdvice
