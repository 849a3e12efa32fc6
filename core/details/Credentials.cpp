#include "core/details/Credentials.h"

#include "core/tool/ExifToolRunner.h"

#include <QRegularExpression>

namespace Quorbel::Credentials {

using namespace Qt::StringLiterals;

namespace {

// What the tool calls a box of HEIF that it has no name for.
QString namelessBox()
{
    return u"QuickTime:UUID-Unknown"_s;
}

// The tool has no names for these either, where the standard lays a seal into TIFF and WebP.
QStringList places()
{
    return { u"IFD0:Exif_0xcd41"_s, u"RIFF:Unknown_C2PA"_s };
}

// Of the outermost boxes, wherever they stand; what they hold may have any label.
bool hasLabel(const JSONObject& tags)
{
    static const QRegularExpression outermost(u"^Doc\\d+:JUMBF:JUMDLabel$"_s);
    for (auto tag = tags.lowerBound(u"Doc"_s); tag != tags.cend() && tag.key().startsWith(u"Doc"); ++tag)
        if (tag->stringValue() == u"c2pa"_s && outermost.match(tag.key()).hasMatch())
            return true;
    return false;
}

// Such a box begins with the identifier that the standard gives it.
bool isInBox(const ExifToolRunner& runner, const QUrl& photo, const ReadControl& control)
{
    static const QByteArray identifier =
        QByteArray::fromHex("d8fec3d61b0e483c92975828877ec481").toBase64(QByteArray::OmitTrailingEquals).chopped(1);
    const QStringList selection{ u"-json"_s, u"-G4"_s, u"-a"_s, u"-u"_s, u"-b"_s, u'-' + namelessBox() };
    try {
        return runner.readDump(selection, { photo }, control).contains("base64:" + identifier);
    } catch (const ToolError&) {
        return false;
    }
}

}  // namespace

QStringList tags()
{
    return QStringList{ u"JUMBF:JUMDLabel"_s, namelessBox() } + places();
}

bool isSealed(const ExifToolRunner& runner, const QUrl& photo, const JSONObject& tags, const ReadControl& control)
{
    for (const QString& place : places())
        if (tags.contains(place))
            return true;
    return hasLabel(tags) || (tags.contains(namelessBox()) && isInBox(runner, photo, control));
}

}  // namespace Quorbel::Credentials
