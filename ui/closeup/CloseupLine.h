// The quiet line at the foot of a close look: which photo it is, its stars, what is to be known of it. Fades when
// nothing happens. Thread: the main thread. Knows no model: what it says comes in.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QTimer>
#include <QWidget>

namespace Quorbel {

class QBIconButton;

struct CloseupText {
    QString name{};  ///< of the file
    QString place{};  ///< "3 / 40"
    int stars = 0;
    QString unsaved{};  ///< "2 edits unsaved"; none when empty
    QString note{};  ///< "preview 1616 × 1080 of 6000 × 4000"; none when empty
    QString zoom{};  ///< "100 %"

    /// All of it, for who hears it.
    QString spoken() const;
    bool operator==(const CloseupText&) const = default;
};

class CloseupLine final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CloseupLine)

public:
    explicit CloseupLine(QWidget* parent);
    static int lineHeight();
    void setText(const CloseupText& text);
    /// Is seen again, for a while.
    void appear();

signals:
    void closeAsked();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRight(QPainter& painter, QRect& room) const;
    void paintLeft(QPainter& painter, QRect room) const;

    CloseupText m_text;
    QBIconButton* m_close;
    QTimer m_leaves;
    AnimatedValue m_opacity;
};

}  // namespace Quorbel
