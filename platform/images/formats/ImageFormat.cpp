#include "platform/images/formats/ImageFormat.h"

#include "platform/images/formats/TiffReader.h"

#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <array>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

struct Signature {
    int offset = 0;
    QByteArrayView bytes{};
    ImageFormat format = ImageFormat::unknown;
};

QByteArrayView view(const char* bytes, qsizetype length)
{
    return { bytes, length };
}

const auto& signatures()
{
    using enum ImageFormat;
    static const std::array table{
        Signature{ 0, view("\xff\xd8\xff", 3), jpeg },
        Signature{ 0, view("\x89PNG\r\n\x1a\n", 8), png },
        Signature{ 0, view("GIF87a", 6), gif },
        Signature{ 0, view("GIF89a", 6), gif },
        Signature{ 8, view("WEBP", 4), webp },
        Signature{ 0, view("8BPS", 4), psd },
        Signature{ 0, view("\xff\x0a", 2), jxl },
        Signature{ 0, view("\0\0\0\x0cJXL \r\n\x87\n", 12), jxl },
        Signature{ 0, view("\0\0\0\x0cjP  \r\n\x87\n", 12), jp2 },
        Signature{ 0, view("\xff\x4f\xff\x51", 4), j2k },
        Signature{ 0, view("II\xbc", 3), jxr },
        Signature{ 0, view("FUJIFILMCCD-RAW", 15), raw },
        Signature{ 0, view("FOVb", 4), raw },
        Signature{ 0, view("\0MRM", 4), raw },
        Signature{ 6, view("HEAPCCDR", 8), raw },
        Signature{ 0, view("IIRO", 4), raw },
        Signature{ 0, view("IIRS", 4), raw },
        Signature{ 0, view("MMOR", 4), raw },
        Signature{ 0, view("IIU\0", 4), raw },
        Signature{ 8, view("CR\x02\0", 4), raw },
        Signature{ 4, view("ftypcrx ", 8), raw },
    };
    return table;
}

// ISO base media files name their brands in the first box: the main one, a version, then the compatible ones.
ImageFormat formatOfBrands(QByteArrayView head)
{
    if (head.size() < 16 || head.sliced(4, 4) != "ftyp")
        return ImageFormat::unknown;
    const auto boxLength = qFromBigEndian<quint32>(head.data());
    const auto end = qMin<qsizetype>(head.size(), boxLength);
    bool heif = false;
    for (qsizetype at = 8; at + 4 <= end; at += 4) {
        const QByteArrayView brand = head.sliced(at, 4);
        if (brand == "avif" || brand == "avis")
            return ImageFormat::avif;
        for (const char* known : { "heic", "heix", "hevc", "hevx", "heim", "heis", "hevm", "hevs", "mif1", "msf1" })
            heif = heif || brand == known;
    }
    return heif ? ImageFormat::heif : ImageFormat::unknown;
}

// TIFF is the shell of most raw formats; the first directory tells a picture from a sensor's data.
bool isRawTiff(QIODevice& device)
{
    constexpr quint16 photometricTag = 262, dngVersionTag = 50706, dngBackwardVersionTag = 50707;
    constexpr quint32 colorFilterArray = 32803, linearRaw = 34892;
    TiffReader tiff(device);
    const TiffDirectory first = tiff.directory(tiff.firstDirectory());
    const auto photometric = first.number(photometricTag);
    return first.contains(dngVersionTag) || first.contains(dngBackwardVersionTag)
        || (photometric && (*photometric == colorFilterArray || *photometric == linearRaw));
}

}  // namespace

bool hasRawExtension(const QString& path)
{
    static const QSet<QString> raws{ u"dng"_s, u"cr2"_s, u"cr3"_s, u"crw"_s, u"nef"_s, u"nrw"_s, u"arw"_s, u"arq"_s,
        u"sr2"_s, u"raf"_s, u"orf"_s, u"ori"_s, u"rw2"_s, u"raw"_s, u"rwl"_s, u"pef"_s, u"srw"_s, u"erf"_s, u"fff"_s,
        u"iiq"_s, u"mef"_s, u"mos"_s, u"mrw"_s, u"gpr"_s, u"x3f"_s, u"kdc"_s };
    return raws.contains(QFileInfo(path).suffix().toLower());
}

ImageFormat detectFormat(QIODevice& device, const QString& path)
{
    device.seek(0);
    const QByteArray head = device.read(256);
    device.seek(0);
    for (const Signature& signature : signatures()) {
        if (QByteArrayView(head).sliced(qMin<qsizetype>(signature.offset, head.size())).startsWith(signature.bytes))
            return signature.format;
    }
    if (head.startsWith("\xff\xd8"))
        return ImageFormat::jpeg;  // stray bytes stand before its first segment
    if (const auto branded = formatOfBrands(head); branded != ImageFormat::unknown)
        return branded;
    if (TiffReader::isTiff(head)) {
        const bool raw = hasRawExtension(path) || isRawTiff(device);
        device.seek(0);
        return raw ? ImageFormat::raw : ImageFormat::tiff;
    }
    return hasRawExtension(path) ? ImageFormat::raw : ImageFormat::unknown;
}

}  // namespace Quorbel
