// "3 edits of 5 photos left unsaved · Bring back": a quiet line with a button in it, on one line where it fits, else on
// two. Thread: the main thread. Knows no model: what it says comes in, a press goes out.
#pragma once

#include <QWidget>

namespace Quorbel {

class QBTextButton;
class ThemedLabel;

class LeftNoticeLine final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LeftNoticeLine)

public:
    explicit LeftNoticeLine(QWidget* parent = nullptr);
    /// `brief` is shown where not even a line of its own holds the text; the whole one is then the tooltip.
    void setText(const QString& text, const QString& brief);
    QBTextButton* button() const { return m_button; }
    QSize minimumSizeHint() const override { return { 0, 0 }; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void place();

    QString m_whole;
    QString m_brief;
    ThemedLabel* m_text;
    ThemedLabel* m_dot;
    QBTextButton* m_button;
};

}  // namespace Quorbel
