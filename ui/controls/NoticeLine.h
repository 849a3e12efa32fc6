// "3 edits of 5 photos left unsaved · Bring back": a quiet line with a button in it, on one line where it fits, else on
// two. Thread: the main thread. Knows no model: what it says comes in, a press goes out.
#pragma once

#include "ui/controls/Labels.h"

#include <QWidget>

namespace Quorbel {

class QBTextButton;

class NoticeLine final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NoticeLine)

public:
    explicit NoticeLine(const QString& action, QWidget* parent = nullptr);
    /// What text and button are drawn in.
    void setRoles(TextRole text, TextRole button);
    /// `brief` is shown where not even a line of its own holds the text; the whole one is then the tooltip.
    void setText(const QString& text, const QString& brief);
    /// Whether the button is there.
    void setOffered(bool offered);
    QBTextButton* button() const { return m_button; }
    /// How many lines it takes in this width.
    int lines(int width) const;
    static int lineHeight();
    QSize minimumSizeHint() const override { return { 0, 0 }; }

signals:
    /// lines() may have another answer.
    void changed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void place();
    int textWidth() const;

    QString m_whole;
    QString m_brief;
    ThemedLabel* m_text;
    ThemedLabel* m_dot;
    QBTextButton* m_button;
    bool m_isOffered = true;
};

}  // namespace Quorbel
