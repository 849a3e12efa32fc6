#include "core/tool/ToolOutput.h"

#include "core/language/Texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUtf8StringView>

#include <algorithm>

namespace Quorbel::ToolOutput {

using namespace Qt::StringLiterals;

namespace {

// Characters of the output that an error about it quotes.
constexpr qsizetype quotedCharacters = 400;

ToolError undecodable(const QString& reason, const QByteArray& output)
{
    // Four bytes a character at most; a character that this cuts in two lies behind those that are quoted.
    const auto characters = QString::fromUtf8(output.left(4 * quotedCharacters)).toUcs4();
    const auto quoted = QString::fromUcs4(
        reinterpret_cast<const char32_t*>(characters.constData()), std::min(characters.size(), quotedCharacters));
    //: %1 is why it could not be decoded, %2 the beginning of it
    return ToolError(ToolError::DecodeFailed{ Texts::tr("%1 — output: %2").arg(reason, quoted) });
}

// `quotes`: which numbers become texts.
QByteArray withNumbersQuoted(QByteArrayView json, bool (*quotes)(const QByteArray& number))
{
    QByteArray quoted;
    quoted.reserve(json.size() + json.size() / 8);
    bool isInString = false;
    for (qsizetype at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (!isInString && (c == '-' || (c >= '0' && c <= '9'))) {
            qsizetype end = at;
            while (end < json.size() && QByteArrayView("+-.0123456789Ee").contains(json[end]))
                ++end;
            const QByteArray number = json.sliced(at, end - at).toByteArray();
            quoted += quotes(number) ? '"' + number + '"' : number;
            at = end - 1;
            continue;
        }
        quoted += c;
        if (c == '"')
            isInString = !isInString;
        else if (c == '\\' && at + 1 < json.size())
            quoted += json[++at];
    }
    return quoted;
}

// A text like "1e999" is printed as a number, which no double holds and Qt refuses together with all the rest.
bool isHuge(const QByteArray& number)
{
    bool fits = false;
    number.toDouble(&fits);
    return !fits;
}

// The files' objects, each without the comma or bracket behind it. A value never holds a raw line feed, and what is
// nested stands further in, so a line that begins with an object's first key is always one.
QList<QByteArrayView> objectsIn(QByteArrayView output)
{
    const QByteArrayView marker("{\n  \"SourceFile\":");
    QList<QByteArrayView> pieces;
    for (qsizetype at = output.indexOf(marker); at >= 0;) {
        const qsizetype next = output.indexOf(marker, at + marker.size());
        QByteArrayView piece = output.sliced(at, (next < 0 ? output.size() : next) - at).trimmed();
        if (piece.endsWith(',') || piece.endsWith(']'))
            piece.chop(1);
        pieces.append(piece);
        at = next;
    }
    return pieces;
}

// From its first line, which is good whatever the rest is like.
QString sourceFile(QByteArrayView piece)
{
    QByteArray line = piece.first(std::max<qsizetype>(piece.indexOf('\n', 2), 0)).toByteArray();
    if (line.endsWith(','))
        line.chop(1);
    return QJsonDocument::fromJson(line + '}')[u"SourceFile"_s].toString();
}

// The object, or why there is none.
std::variant<QJsonObject, QString> decodePiece(QByteArrayView piece)
{
    if (!QUtf8StringView(piece).isValidUtf8())
        return Texts::tr("its values are not UTF-8");
    QJsonParseError error;
    auto document = QJsonDocument::fromJson(piece.toByteArray(), &error);
    if (error.error == QJsonParseError::IllegalNumber)
        document = QJsonDocument::fromJson(withNumbersQuoted(piece, isHuge), &error);
    if (error.error != QJsonParseError::NoError)
        return error.errorString();
    return document.object();
}

Decoded decodeEach(const QByteArray& output, const ToolError& wholeError)
{
    Decoded decoded;
    QJsonArray good;
    for (const QByteArrayView piece : objectsIn(output)) {
        const auto result = decodePiece(piece);
        if (const auto* object = std::get_if<QJsonObject>(&result)) {
            good.append(*object);
            continue;
        }
        decoded.error = wholeError;
        if (const QString path = sourceFile(piece); !path.isEmpty())
            decoded.undecodable.insert(path, std::get<QString>(result));
    }
    if (good.isEmpty() && decoded.undecodable.isEmpty())
        decoded.error = wholeError;
    decoded.objects = objectsFromJson(good).value_or(QList<JSONObject>());
    return decoded;
}

}  // namespace

Decoded decode(QByteArray output)
{
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(output, &error);
    if (error.error != QJsonParseError::NoError)
        return decodeEach(output, undecodable(error.errorString(), output));
    output.truncate(4 * quotedCharacters);
    output.squeeze();  // of a hundred thousand photos this is a hundred megabytes
    auto objects = document.isArray() ? objectsFromJson(document.array()) : std::nullopt;
    if (!objects)
        return { .error = undecodable(Texts::tr("not an array of objects"), output) };
    return { .objects = *std::move(objects) };
}

Decoded decodeExactly(QByteArray output)
{
    output = withNumbersQuoted(output, [](const QByteArray&) { return true; });
    return decode(std::move(output));
}

}  // namespace Quorbel::ToolOutput
