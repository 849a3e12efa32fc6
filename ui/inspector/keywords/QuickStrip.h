// The strip of quick keywords: a press adds one to all selected photos; the name of their set is a menu of the sets.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace Quorbel {

class AppModel;
class QBTextButton;
class SubRow;
class TokenChip;
class WalkedFlow;

class QuickStrip final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickStrip)

public:
    QuickStrip(AppModel& model, QWidget* parent);
    SubRow* row() const { return m_row; }
    QList<QWidget*> tabStops() const;
    void refresh();

private:
    TokenChip* chipAt(int i);
    void openMenu();

    AppModel& m_model;
    WalkedFlow* m_flow;
    SubRow* m_row;
    QBTextButton* m_set;
    QList<TokenChip*> m_chips;  ///< made so far
};

}  // namespace Quorbel
