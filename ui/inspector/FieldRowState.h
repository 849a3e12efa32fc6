// What one row of the inspector shows. Thread: any. Plain values; knows neither model nor widget.
#pragma once

#include <QString>
#include <QStringList>

namespace Quorbel {

/// All that a row shows.
struct FieldRowState {
    QString label{};
    QString text{};  ///< of an editor of one value
    QStringList items{};  ///< of a keyword editor
    QString placeholder{};
    bool italicPlaceholder = false;
    bool batch = false;  ///< has a tick
    bool included = false;  ///< the tick
    bool edited = false;
    bool removable = false;
    QString noteLine{};  ///< what is wrong with the text; none when empty
    bool unread = false;  ///< not known yet: a block in the place of the editor, which takes nothing
    bool fixed = false;  ///< shown only: an editor of one value takes no typing, and there is no tick
    QString namespaceLine{};  ///< none when empty
    QString helpLine{};  ///< none when empty
    bool operator==(const FieldRowState&) const = default;
};

}  // namespace Quorbel
