#include "core/text/JSONValue.h"

#include "core/text/Text.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// From this magnitude on, a double no longer stands for one integer that is worth printing digit by digit.
constexpr double integralLimit = 1e15;

QString numberText(double number)
{
    if (std::rint(number) == number && std::abs(number) < integralLimit)
        return QString::number(static_cast<qint64>(number));
    return Text::shortestForm(number);
}

// Texts up to this length are worth looking up: names of keys, cameras and lenses, dates, exposures.
constexpr qsizetype sharedLength = 40;

// Builds values, keeping one copy of each short text, however often it occurs.
class Decoder {
public:
    JSONValue value(const QJsonValue& json)
    {
        switch (json.type()) {
        case QJsonValue::Bool:
            return JSONValue(json.toBool());
        case QJsonValue::Double:
            return JSONValue(json.toDouble());
        case QJsonValue::String:
            return JSONValue(shared(json.toString()));
        case QJsonValue::Array:
            return JSONValue(array(json.toArray()));
        case QJsonValue::Object:
            return JSONValue(object(json.toObject()));
        case QJsonValue::Null:
        case QJsonValue::Undefined:
            break;
        }
        return {};
    }

    JSONObject object(const QJsonObject& json)
    {
        JSONObject members;
        // Qt keeps members in the order of their keys, so each goes to the end of the map.
        for (auto it = json.begin(); it != json.end(); ++it)
            members.insert(members.cend(), shared(it.key()), value(it.value()));
        return members;
    }

private:
    QList<JSONValue> array(const QJsonArray& json)
    {
        QList<JSONValue> elements;
        elements.reserve(json.size());
        for (const auto& element : json)
            elements.append(value(element));
        return elements;
    }

    QString shared(const QString& text) { return text.size() <= sharedLength ? *m_texts.insert(text) : text; }

    QSet<QString> m_texts;
};

}  // namespace

bool JSONValue::Array::operator==(const Array& other) const
{
    return *elements == *other.elements;
}

bool JSONValue::Object::operator==(const Object& other) const
{
    return *members == *other.members;
}

JSONValue::JSONValue(const QString& string)
    : payload(string)
{
}

JSONValue::JSONValue(double number)
    : payload(number)
{
}

JSONValue::JSONValue(bool boolean)
    : payload(boolean)
{
}

JSONValue::JSONValue(const QList<JSONValue>& array)
    : payload(Array{ std::make_shared<const QList<JSONValue>>(array) })
{
}

JSONValue::JSONValue(const JSONObject& object)
    : payload(Object{ std::make_shared<const JSONObject>(object) })
{
}

bool JSONValue::operator==(const JSONValue& other) const
{
    return payload == other.payload;
}

std::optional<QString> JSONValue::stringValue() const
{
    if (const auto* string = std::get_if<QString>(&payload))
        return *string;
    if (const auto* number = std::get_if<double>(&payload))
        return numberText(*number);
    if (const auto* boolean = std::get_if<bool>(&payload))
        return *boolean ? u"true"_s : u"false"_s;
    if (std::holds_alternative<Array>(payload))
        return stringArray().join(u", "_s);
    return std::nullopt;
}

QStringList JSONValue::stringArray() const
{
    QStringList texts;
    const auto add = [&texts](const JSONValue& value) {
        if (const auto text = value.stringValue())
            texts.append(*text);
    };
    if (const auto* array = std::get_if<Array>(&payload)) {
        for (const auto& element : *array->elements)
            add(element);
    } else {
        add(*this);
    }
    return texts;
}

JSONValue JSONValue::fromJson(const QJsonValue& value)
{
    return Decoder().value(value);
}

std::optional<QList<JSONObject>> objectsFromJson(const QJsonArray& array)
{
    QList<JSONObject> objects;
    objects.reserve(array.size());
    Decoder decoder;
    for (const auto& element : array) {
        if (!element.isObject())
            return std::nullopt;
        objects.append(decoder.object(element.toObject()));
    }
    return objects;
}

}  // namespace Quorbel
