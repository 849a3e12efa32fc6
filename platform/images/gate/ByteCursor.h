// Numbers of up to eight bytes, most significant first, out of bytes that nobody has checked. Pure.
#pragma once

#include <QByteArrayView>

namespace Quorbel {

/// Past the end everything is 0, and the cursor is not valid any more.
class ByteCursor {
public:
    explicit ByteCursor(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }
    quint64 number(qsizetype length)
    {
        quint64 value = 0;
        for (const qsizetype end = m_at + length; m_at < end; ++m_at)
            value = value << 8 | (m_at < m_bytes.size() ? quint8(m_bytes[m_at]) : 0u);
        return value;
    }
    qsizetype at() const { return m_at; }
    bool isValid() const { return m_at <= m_bytes.size(); }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

}  // namespace Quorbel
