// A field that holds one code, shows its name and opens a list to search for another.
// Thread: the main thread. What codes there are, its owner says.
#pragma once

#include "ui/controls/Buttons.h"
#include "ui/controls/pickers/CodeSource.h"

namespace Quorbel {

/// 30 points high, as wide as there is room. A click, Up, Down, Space and Return open the list, a letter opens it and
/// looks for it; Delete and Backspace clear. A code that is not known is shown as it is, and stays until another is
/// picked. Where any text may be picked, the list begins with such a text, so that it can be changed; Copy and Paste
/// take and bring one.
class CodePicker final : public ThemedButton {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CodePicker)

public:
    /// `name` is what screen readers hear.
    explicit CodePicker(const QString& name, QWidget* parent = nullptr);
    void setSource(const CodeSource& source);
    /// Emits nothing.
    void setCode(const QString& code);
    const QString& code() const { return m_code; }
    /// In the place of a name while there is no code.
    void setPlaceholder(const QString& text, bool italic = false);
    const QString& placeholder() const { return m_placeholder; }
    void setEdited(bool edited);
    /// As QBTextField::setWanted().
    void setWanted(bool wanted);
    bool isOpen() const { return m_open; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Also the one that is there already; "" for none.
    void picked(const QString& code);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void openList(const QString& typed);
    void setOpen(bool open);
    void take(const QString& code);
    void showToolTip();

    CodeSource m_source;
    QString m_code;
    QString m_placeholder;
    bool m_italicPlaceholder = false;
    bool m_edited = false;
    bool m_wanted = false;
    bool m_open = false;
};

}  // namespace Quorbel
