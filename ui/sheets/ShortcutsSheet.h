// All keys at a glance, in groups; typing finds some of them.
// Thread: the main thread. Knows no key: they come in.
#pragma once

#include "ui/sheets/Sheet.h"
#include "ui/window/Shortcuts.h"

class QBoxLayout;

namespace Quorbel {

class QBTextField;
class ScrollArea;
class ThemedLabel;

class ShortcutsSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ShortcutsSheet)

public:
    explicit ShortcutsSheet(QList<ShortcutGroup> groups, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override { emit closed(); }
    void cancel() override { emit closed(); }
    QWidget* initialFocus() override;

signals:
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void build();
    void fitColumns();
    void find();

    QList<ShortcutGroup> m_groups;
    QBTextField* m_query;
    ScrollArea* m_scroll;
    QBoxLayout* m_columns = nullptr;
    ThemedLabel* m_none;
    QList<QWidget*> m_titles;  ///< one a group
    QList<QList<QWidget*>> m_rows;  ///< of each group
};

}  // namespace Quorbel
