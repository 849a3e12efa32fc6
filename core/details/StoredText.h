// A text as a home holds it: perhaps cut off, re-encoded, with other line ends.
// Thread: any. A plain value; made once and compared often.
#pragma once

#include <QString>
#include <QStringList>

namespace Quorbel {

class StoredText {
public:
    /// `tag`: "IPTC:City". Without a declared encoding the tool has read the text as Windows Latin 1.
    StoredText(const QString& tag, const QString& text, bool declaresEncoding);

    /// Whether both are the same text, or one of them what became of the other in its home.
    bool isSame(const StoredText& other) const;

    /// Without white space around it, and with line feeds for all line ends.
    static QString normal(const QString& text);

private:
    bool isFormOf(const StoredText& whole) const;

    QStringList m_readings;  // what it may have been meant to be; the first as it stands
    bool m_isCutOff = false;  // may be
    bool m_hasMarks = false;  // for letters that its encoding lacks
};

}  // namespace Quorbel
