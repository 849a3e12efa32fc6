// Texts as homes hold them: cut off, re-encoded, with other line ends. Thread: any. Pure.
#pragma once

#include <QString>

namespace Quorbel::StoredText {

/// A text in its home.
struct Stored {
    QString tag{};  ///< "IPTC:City"
    QString text{};
    bool declaresEncoding = true;
};

/// Without white space around it, and with line feeds for all line ends.
QString normal(const QString& text);
/// Whether both are the same text, or one of them what became of the other in its home.
bool isSame(const Stored& a, const Stored& b);

}  // namespace Quorbel::StoredText
