// The help window: the topics at the left, the selected one's text at the right. Thread: the main thread.
#pragma once

#include "ui/window/HelpTopics.h"
#include "ui/window/SideWindow.h"

namespace Quorbel {

class ScrollArea;
class TopicList;

class HelpView final : public SideWindow {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HelpView)

public:
    explicit HelpView(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void select(HelpTopic topic);
    void showTopic();
    void arrange();

    HelpTopic m_selection = HelpTopic::gettingStarted;
    TopicList* m_topics;
    ScrollArea* m_page;
};

}  // namespace Quorbel
