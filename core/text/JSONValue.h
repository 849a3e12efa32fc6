// A JSON value as ExifTool prints them, decoded leniently so that any output can be held.
// Thread: any. A plain value.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <variant>

class QJsonArray;
class QJsonObject;
class QJsonValue;

namespace Quorbel {

struct JSONValue;
using JSONObject = QMap<QString, JSONValue>;

struct JSONValue {
    struct Null {
        bool operator==(const Null&) const = default;
    };
    struct Array {
        std::shared_ptr<const QList<JSONValue>> elements;
        bool operator==(const Array& other) const;
    };
    struct Object {
        std::shared_ptr<const JSONObject> members;
        bool operator==(const Object& other) const;
    };

    std::variant<QString, double, bool, Array, Object, Null> payload = Null{};

    JSONValue() = default;
    JSONValue(const QString& string);
    JSONValue(double number);
    JSONValue(bool boolean);
    JSONValue(const QList<JSONValue>& array);
    JSONValue(const JSONObject& object);
    JSONValue(const char*) = delete;  // would silently become a Boolean

    /// The value as one text: integral numbers below 10^15 without fraction, other numbers in shortest form,
    /// "true"/"false", the elements of an array joined with ", ". Nothing for objects and null.
    std::optional<QString> stringValue() const;
    /// The value as a list of texts: an array's elements, or the one text; elements without a text are left out.
    QStringList stringArray() const;

    bool operator==(const JSONValue& other) const;

    /// From Qt's decoder. Never fails: what cannot be held becomes null.
    static JSONValue fromJson(const QJsonValue& value);
};

/// The objects of an array, in order; nothing when an element is something else. The objects share equal short
/// texts, keys and values: a hundred thousand photos have the same forty keys and a few cameras between them.
std::optional<QList<JSONObject>> objectsFromJson(const QJsonArray& array);

}  // namespace Quorbel
