// Reads the directories of a TIFF structure: TIFF files, most raw files, and the EXIF block of every other format.
// Thread: the one that owns the device. Bounded: whatever the offsets say, it reads only what is asked for.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QMap>

#include <optional>

namespace Quorbel {

struct TiffEntry {
    quint16 type = 0;
    quint32 count = 0;
    QByteArray inlineBytes{};  ///< the four bytes that hold the value or its offset
    bool littleEndian = true;
};

struct TiffDirectory {
    QMap<quint16, TiffEntry> entries{};
    quint32 next = 0;  ///< offset of the following directory; 0: none

    bool contains(quint16 tag) const { return entries.contains(tag); }
    /// The first value of a BYTE, SHORT or LONG entry that fits its four bytes, or the offset of a longer one.
    std::optional<quint32> number(quint16 tag) const;
};

class TiffReader {
public:
    /// `base`: where the structure begins in the device; offsets inside it count from there.
    explicit TiffReader(QIODevice& device, qint64 base = 0);

    static bool isTiff(QByteArrayView head);
    bool isValid() const { return m_valid; }
    bool isLittleEndian() const { return m_littleEndian; }
    quint32 firstDirectory() const { return m_first; }
    /// Empty when the offset lies outside or the directory is broken.
    TiffDirectory directory(quint32 offset) const;
    /// The numbers of a SHORT or LONG entry, at most `limit` of them.
    QList<quint32> numbers(const TiffEntry& entry, qsizetype limit) const;
    /// Bytes of the structure; fewer than asked for when it ends before.
    QByteArray bytes(quint32 offset, qint64 length) const;

private:
    QIODevice& m_device;
    qint64 m_base = 0;
    bool m_valid = false;
    bool m_littleEndian = true;
    quint32 m_first = 0;
};

}  // namespace Quorbel
