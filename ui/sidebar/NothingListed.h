// What stands where the rows of the list of photos would, while there are none: why, and what to press.
// Thread: the main thread. Shows the model and calls it. Lies beside the list and not within, where assistive tools
// would find nothing but rows.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class QBButton;
class SidebarList;
class ThemedLabel;

class NothingListed final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NothingListed)

public:
    /// Over the list and following it; a child of the list's parent. Both must outlive this.
    NothingListed(AppModel& model, SidebarList& list);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Said {
        QString text{};
        bool offersLook = false;  ///< at photos that were not looked at yet
        bool offersClear = false;
    };
    Said said() const;
    void refresh();
    void place();

    AppModel& m_model;
    SidebarList& m_list;
    ThemedLabel* m_text;
    QBButton* m_look;  ///< at photos that were not looked at yet, where none of the others is listed
    QBButton* m_clear;  ///< the filters, where they leave nothing
};

}  // namespace Quorbel
