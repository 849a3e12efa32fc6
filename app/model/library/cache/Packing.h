// Numbers and texts as bytes, short ones for what is small, and back.
// Thread: one at a time. Knows nothing of what they mean.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <limits>
#include <optional>

namespace Quorbel {

/// Texts of which there is a list stand as their positions in it.
struct Names {
    QStringList names;
    QHash<QString, quint64> positions;

    explicit Names(const QStringList& all)
        : names(all)
    {
        for (qsizetype i = 0; i < names.size(); ++i)
            positions.insert(names.at(i), quint64(i));
    }
};

class Packer {
public:
    void number(quint64 value)
    {
        for (; value > 0x7F; value >>= 7)
            m_bytes.append(char(value | 0x80));
        m_bytes.append(char(value));
    }

    /// None is 0; the others alternate between positive and negative, so that small ones stay short.
    template <typename T>
    void optionalNumber(const std::optional<T>& value)
    {
        const qint64 given = value.value_or(0);
        const quint64 folded = quint64(given) << 1 ^ quint64(given >> 63);
        if (folded == std::numeric_limits<quint64>::max())
            m_isExact = false;
        number(value ? folded + 1 : 0);
    }

    void text(const QString& text)
    {
        m_isExact = m_isExact && text.isValidUtf16();
        const QByteArray bytes = text.toUtf8();
        number(quint64(bytes.size()));
        m_bytes.append(bytes);
    }

    void name(const Names& names, const QString& name)
    {
        const auto at = names.positions.constFind(name);
        m_isExact = m_isExact && at != names.positions.cend();
        number(at != names.positions.cend() ? *at : 0);
    }

    QByteArray bytes() const { return m_isExact ? m_bytes : QByteArray(); }

private:
    QByteArray m_bytes;
    bool m_isExact = true;
};

/// Bytes whose seal held are as they were packed; the checks keep even others from reaching out of them.
class Unpacker {
public:
    explicit Unpacker(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    quint64 number()
    {
        quint64 value = 0;
        for (int shift = 0; m_isGood; shift += 7) {
            m_isGood = shift < 64 && m_at < m_bytes.size();
            const auto byte = m_isGood ? quint8(m_bytes[m_at++]) : quint8(0);
            value |= quint64(byte & 0x7F) << (shift & 63);
            if (byte <= 0x7F)
                break;
        }
        return value;
    }

    template <typename T>
    std::optional<T> optionalNumber()
    {
        const quint64 stored = number();
        const quint64 folded = stored - 1;
        return stored == 0 ? std::nullopt : std::optional(T(qint64(folded >> 1) ^ -qint64(folded & 1)));
    }

    /// A count of things that take at least a byte each.
    qsizetype count()
    {
        const quint64 value = number();
        m_isGood = m_isGood && value <= quint64(m_bytes.size() - m_at);
        return m_isGood ? qsizetype(value) : 0;
    }

    QString text()
    {
        const qsizetype size = count();
        const QString text = QString::fromUtf8(m_bytes.sliced(m_at, size));
        m_at += size;
        return text;
    }

    QString name(const Names& names)
    {
        const quint64 at = number();
        m_isGood = m_isGood && at < quint64(names.names.size());
        return m_isGood ? names.names.at(qsizetype(at)) : QString();
    }

    bool isGood() const { return m_isGood && m_at == m_bytes.size(); }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    bool m_isGood = true;
};

}  // namespace Quorbel
