// The editor of one member of a structure, one for each kind. Thread: the main thread. Knows no card: what one makes of
// the value goes to a function.
#pragma once

#include "core/iptc/IptcStructures.h"
#include "ui/controls/text/TypedCode.h"

#include <QJsonValue>
#include <QList>

#include <functional>
#include <optional>

class QWidget;

namespace Quorbel {

struct MemberEditorParts {
    StructureMember member{};
    QString label{};  ///< what screen readers hear
    CodeTexts codes{};  ///< what short codes in texts stand for
    std::function<QString()> structure{};  ///< all of it, as it is now
    std::function<void(const QString& structure)> changed{};  ///< what it is with another value of the member
    std::function<void()> stopsChanged{};  ///< other widgets take Tab than before
};

struct MemberEditor {
    QWidget* widget = nullptr;
    QWidget* input = nullptr;  ///< the part that takes the keyboard
    std::function<QList<QWidget*>()> tabStops{};
    /// What the member is in this structure; `fresh` as in StructureCards::setState().
    std::function<void(const QString& structure, bool fresh)> show{};
    std::function<void(bool on)> setReadOnly{};
    /// Where it is other than in `origin` it looks edited; nowhere for none.
    std::function<void(const std::optional<QString>& origin)> mark{};
};

/// `name` is the member's, or that of its text in a language: "AOTitle-de".
MemberEditor makeMemberEditor(const QString& name, const MemberEditorParts& parts, QWidget* parent);

}  // namespace Quorbel
