// How far a read or a write has come: a line of text, a bar, and Cancel for what can be cancelled. Names the file that
// a read is stuck at, with Skip.
// Thread: the main thread. Shows AppModel::progress(), and only for work that takes long enough to be noticed.
#pragma once

#include <QTimer>
#include <QWidget>

namespace Quorbel {

class AppModel;
class ProgressBar;
class QBTextButton;
class ThemedLabel;

/// 54 points high. Hidden until work has run for 400 ms; hidden again when it ends.
class ProgressFoot final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressFoot)

public:
    explicit ProgressFoot(AppModel& model, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    /// With a hairline at the top: the foot of a column. Without: a block of its own.
    void setLined(bool lined);

signals:
    /// It appeared or went.
    void shownChanged(bool shown);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    void showProgress();
    bool isWriting() const;
    QString shownText() const;

    AppModel& m_model;
    ThemedLabel* m_text;
    QBTextButton* m_skip;
    QBTextButton* m_cancel;
    ProgressBar* m_bar;
    QTimer m_showDelay;  ///< until it appears, and until a write takes the place of a read
    bool m_showsWrite = false;
    bool m_lined = true;
};

}  // namespace Quorbel
