// "3 photos disagree · 12 not looked at yet": that only photos whose places disagree are listed, how many they are, and
// the way back to all. Thread: the main thread. Shows AppModel and calls it.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class NoticeLine;
class QBIconButton;

class DisagreementsBar final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DisagreementsBar)

public:
    explicit DisagreementsBar(AppModel& model, QWidget* parent = nullptr);

    /// What to press for a look at photos that were not looked at yet.
    static QString lookTitle();
    /// Whether that is of use now.
    static bool canLook(const AppModel& model);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    void place();

    AppModel& m_model;
    NoticeLine* m_notice;
    QBIconButton* m_close;
};

}  // namespace Quorbel
