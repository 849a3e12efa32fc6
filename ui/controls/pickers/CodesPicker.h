// A field that holds several codes, as chips with their names, and adds to them from a list to search in.
// Thread: the main thread. The codes belong to the owner: the picker asks with added() and removed() and shows what
// setCodes() then says.
#pragma once

#include "ui/controls/pickers/CodeSource.h"

#include <QStringList>
#include <QWidget>

namespace Quorbel {

class HoverFade;
class KeywordChip;
class QBTextButton;
class WalkedFlow;

/// One stop for Tab, arrows walk; Delete, Backspace and the cross of a chip remove it. In the list those that are held
/// have check marks: picking one of them removes it.
class CodesPicker final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CodesPicker)

public:
    /// `name` is what screen readers hear; `add` the title of the button: "Add subject".
    CodesPicker(const QString& name, const QString& add, QWidget* parent = nullptr);
    void setSource(const CodeSource& source);
    void setCodes(const QStringList& codes);
    const QStringList& codes() const { return m_codes; }
    /// In the place of the button's title while there is no code; none when empty.
    void setPlaceholder(const QString& text);
    /// Draws the chips in amber: they will be added to all selected photos.
    void setAmber(bool amber);
    /// The edited look of the whole frame.
    void setEdited(bool edited);
    /// As QBTextField::setWanted().
    void setWanted(bool wanted);
    /// The button that opens the list: what takes the keyboard.
    QWidget* input() const;
    QList<QWidget*> tabStops() const;

signals:
    void added(const QString& code);
    void removed(const QString& code);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showCodes();
    KeywordChip* makeChip();
    void remove(int index);
    void openList();

    CodeSource m_source;
    QStringList m_codes;
    QString m_add;
    QString m_placeholder;
    WalkedFlow* m_flow;
    QBTextButton* m_button;
    QList<KeywordChip*> m_chips;
    HoverFade* m_fade;
    QObject* m_ring = nullptr;
    bool m_amber = false;
    bool m_edited = false;
    bool m_wanted = false;
};

}  // namespace Quorbel
