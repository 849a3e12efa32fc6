// What one row of the inspector shows. Thread: any. Plain values; knows neither model nor widget.
#pragma once

#include "core/schema/PhotoDetails.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Quorbel {

/// What a row shows of a field's texts in further languages.
struct RowLanguages {
    struct Code {
        QString text{};
        bool isGone = false;  ///< will be taken away
        bool operator==(const Code&) const = default;
    };
    bool isPossible = false;  ///< the field may have some
    QList<Code> codes{};
    bool isOpen = false;  ///< their rows stand below
    bool isEdited = false;  ///< one of them
    bool operator==(const RowLanguages&) const = default;
};

/// What a row is that shows the text in one further language; an ordinary row while the code is empty.
struct RowLanguage {
    QString code{};
    QString spoken{};  ///< of which field, too: "Title (German)"
    bool isGone = false;  ///< will be taken away
    bool isLast = false;  ///< more can be added below
    bool operator==(const RowLanguage&) const = default;
};

/// Where else the field stands, when these places disagree.
struct RowHomes {
    QList<FieldHome> homes{};  ///< no mark when empty
    bool canAgree = false;
    bool operator==(const RowHomes&) const = default;
};

/// All that a row shows.
struct FieldRowState {
    QString label{};
    QString text{};  ///< of an editor of one value
    QStringList items{};  ///< of a keyword editor
    QMap<QString, QList<QStringList>> itemParents{};  ///< of items that stand in a tree: the parents of each path
    QStringList held{};  ///< of an edited field with structures: what the photo itself holds
    QString placeholder{};
    bool italicPlaceholder = false;
    bool batch = false;  ///< has a tick
    bool included = false;  ///< the tick
    bool edited = false;
    bool removable = false;
    bool wanted = false;  ///< is empty, and should not be
    QString noteLine{};  ///< what is wrong with the text; none when empty
    bool unread = false;  ///< not known yet: a block in the place of the editor, which takes nothing
    QString unreadText{};  ///< in that block: why it will not be known; none when empty
    bool fixed = false;  ///< shown only: an editor of one value takes no typing, and there is no tick
    QString namespaceLine{};  ///< none when empty
    QString helpLine{};  ///< none when empty
    QString heldLine{};  ///< how many of several photos hold something; none when empty
    bool isNamed = false;  ///< has a label even where the section that it mostly stands in is named after it
    RowLanguages languages{};
    RowLanguage language{};
    RowHomes places{};
    bool operator==(const FieldRowState&) const = default;
};

}  // namespace Quorbel
