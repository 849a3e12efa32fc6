// The one-line text field and the growing text area.
// Thread: the main thread. The text belongs to whoever binds it: setBoundText() shows a value, textEdited() hands back
// what the user made of it.
#pragma once

#include "ui/controls/text/TypedCode.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace Quorbel {

class HoverFade;

/// A plain one-line field, 30 points high. Actions that are added to it stand in its menu.
class QBTextField : public QLineEdit {
    Q_OBJECT

public:
    explicit QBTextField(QWidget* parent = nullptr);
    /// Shows the value; keeps the cursor and the undo history when it is what the field shows already. Emits no
    /// textEdited().
    void setBoundText(const QString& text);
    /// The same, for the value of another thing: forgets the undo history even when the texts are equal.
    void startText(const QString& text) { setText(text); }
    /// What is to stand in the empty field. One that is named by the same words says them once: name it first.
    void setPlaceholder(const QString& text, bool italic = false);
    QString placeholder() const { return m_placeholder.isEmpty() ? placeholderText() : m_placeholder; }
    void setEdited(bool edited);
    /// While it is empty it has a dashed border, and its placeholder is there to be read: "Required by Press".
    void setWanted(bool wanted);
    void setMono(bool mono);
    /// An icon at the left ("magnifyingglass"); none when empty.
    void setLeadingIcon(const QString& icon);
    /// Without its own ground and border: for use inside another frame.
    void setBare(bool bare);
    /// Pixels at the right end that no text runs into: something lies there.
    void setRoomAtEnd(int pixels);
    /// Codes that are typed here become their texts, each as one step that Undo takes back.
    void setCodes(const CodeTexts& codes) { m_codes = codes; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// What Paste does, from the keyboard and from the menu.
    virtual void pasteText() { paste(); }
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void restyle();
    QRect textRect() const;
    void replaceCode();
    void deselectCode();

    HoverFade* m_fade;
    QObject* m_ring = nullptr;
    QString m_icon;
    bool m_edited = false;
    bool m_wanted = false;
    bool m_mono = false;
    bool m_bare = false;
    int m_roomAtEnd = 0;
    QString m_placeholder;
    bool m_italicPlaceholder = false;
    CodeTexts m_codes;
    bool m_isComposing = false;  ///< an input method holds letters that are not in the text yet
    QString m_replacedCode;  ///< the one that was last replaced, with its signs
};

/// A plain multi-line field at least 54 points high that grows with its text. Tab leaves it. Actions that are added
/// to it stand in its menu.
class QBTextArea : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit QBTextArea(QWidget* parent = nullptr);
    QString text() const { return toPlainText(); }
    void setBoundText(const QString& text);
    /// As QBTextField::startText().
    void startText(const QString& text);
    void setPlaceholder(const QString& text, bool italic = false);
    void setEdited(bool edited);
    /// As QBTextField::setWanted().
    void setWanted(bool wanted);
    /// As QBTextField::setRoomAtEnd(); of all lines.
    void setRoomAtEnd(int pixels);
    /// As QBTextField::setCodes().
    void setCodes(const CodeTexts& codes) { m_codes = codes; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user changed the text; not emitted by setBoundText().
    void textEdited(const QString& text);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void restyle();
    void grow();
    bool isComposing() const;
    void replaceCode();

    HoverFade* m_fade;
    int m_roomAtEnd = 0;
    bool m_edited = false;
    bool m_wanted = false;
    bool m_italicPlaceholder = false;
    bool m_binding = false;
    QString m_told;  ///< the text when it was last told of
    CodeTexts m_codes;
};

}  // namespace Quorbel
