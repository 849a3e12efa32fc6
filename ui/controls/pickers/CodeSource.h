// The codes that a picker offers. Thread: the main thread. Plain values; what they mean, their owner knows.
#pragma once

#include "ui/controls/text/TypedCode.h"

#include <QList>
#include <QString>

#include <functional>

namespace Quorbel {

/// A code as it is shown.
struct CodeRow {
    QString code{};
    QString name{};
    QString note{};  ///< a line below the name; none when empty
    bool operator==(const CodeRow&) const = default;
};

struct CodeSource {
    /// What fits the text, best first; all of them for "".
    std::function<QList<CodeRow>(const QString& typed)> rows{};
    /// As known(); without it, all rows are looked through.
    std::function<QString(const QString& code)> nameOf{};
    QString footer{};  ///< behind "4 of 20": "stored as a code"
    bool takesAnyText = false;  ///< what one types may be picked as it is, too
    CodeTexts codes{};  ///< what short codes in that text stand for

    /// "" for a code that is not among them.
    QString known(const QString& code) const;
    /// Of one that is not among them, the code as it is.
    QString shown(const QString& code) const;
};

}  // namespace Quorbel
