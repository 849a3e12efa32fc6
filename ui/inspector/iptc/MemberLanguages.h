// The way to a text of a member in another language: a small plus at its label while the pointer or the keyboard is in
// the row, Alt+Right, and the menu of its editor.
// Thread: the main thread. Knows no languages; the menu to pick one is the owner's.
#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace Quorbel {

class CardRow;
class QBIconButton;

class MemberLanguages final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MemberLanguages)

public:
    /// `row` owns it.
    explicit MemberLanguages(CardRow& row);
    void setReadOnly(bool on);

signals:
    void asked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void offer();

    CardRow& m_row;
    QBIconButton* m_plus;
    QAction* m_add;
    bool m_isHovered = false;
};

}  // namespace Quorbel
