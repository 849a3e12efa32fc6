// The members of one structure, as rows of labels and editors: what an open card holds.
// Thread: the main thread. Knows the structure as a text only; whose it is, its owner knows.
#pragma once

#include "ui/inspector/iptc/MemberEditor.h"

#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QWidget>

class QVBoxLayout;

namespace Quorbel {

class CardRow;
class MemberLanguages;
class QBTextButton;
class WrappedLine;

/// Members that are rarely used come with "More"; one that holds something is always there. What the table of
/// structures does not know is told below the rows.
class StructureFields final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StructureFields)

public:
    StructureFields(const StructureSpec& structure, const CodeTexts& codes, QWidget* parent = nullptr);
    /// As StructureCards::setState().
    void show(const QString& text, bool fresh);
    const QString& text() const { return m_text; }
    void setReadOnly(bool on);
    /// Members that are other than in this structure look edited; none do for none.
    void setOrigin(const std::optional<QString>& origin);
    /// While nothing is in it, a button over the rows; none for "".
    void setStart(const QString& title);
    /// Of a member that is shown, what takes the keyboard; nothing for any other. A text in a language has the name
    /// that the structure has it under: "AOTitle-de".
    QWidget* input(const QString& member) const;
    QWidget* firstInput() const;
    QList<QWidget*> tabStops() const;

signals:
    void textChanged(const QString& text);
    void tabStopsChanged();
    /// The button over the rows was pressed.
    void startAsked();

private:
    // A member, or its text in a language.
    struct Part {
        QString name{};
        StructureMember member{};
        MemberEditor editor{};
        WrappedLine* note = nullptr;  // until it was needed
    };
    struct Line {
        CardRow* row = nullptr;
        MemberLanguages* languages = nullptr;  // of a member that may have some
        QList<Part> parts{};  // side by side
    };
    // The member's place in the table, and the language.
    using Key = std::pair<qsizetype, QString>;
    QList<Key> wanted() const;
    bool isShown(const StructureMember& member) const;
    bool holds(const QString& name) const { return m_members.contains(name); }
    void setText(const QString& text);
    void keepHeld();
    void showLines(bool fresh);
    Line makeLine(const Key& key);
    Part makePart(const StructureMember& member, const QString& code);
    void showNote(Line& line, Part& part);
    void showStart();
    void showMore();
    void showForeign();
    void revealRest();
    void take(const QString& text);
    void openLanguages(const StructureMember& member, CardRow& row);
    void addLanguage(const StructureMember& member, const QString& code);

    const StructureSpec& m_structure;
    CodeTexts m_codes;
    QString m_text;
    QJsonObject m_members;  ///< the text's
    std::optional<QString> m_origin;
    QVBoxLayout* m_column;
    QBTextButton* m_start;
    QMap<Key, Line> m_lines;  ///< those that are not shown, too
    QBTextButton* m_more;
    WrappedLine* m_foreign = nullptr;  ///< until it was needed
    QSet<QString> m_kept;  ///< members that held something since the card was opened
    QMap<QString, QStringList>
        m_languages;  ///< by member: those that had a text since the card was opened, or were added
    bool m_all = false;
    bool m_readOnly = false;
};

}  // namespace Quorbel
