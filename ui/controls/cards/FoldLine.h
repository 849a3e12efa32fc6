// A line that folds and unfolds what is below it; the whole of it is the button.
// Thread: the main thread. Knows nothing of what it folds, and shows no more than it is told: openAsked() is a wish.
#pragma once

#include "ui/controls/Buttons.h"
#include "ui/controls/cards/Summary.h"
#include "ui/controls/theme/AnimatedValue.h"

namespace Quorbel {

/// A click, Space and Return ask for the other state, Right for the open one, Left for the folded one. Its text is its
/// title and its name for screen readers; the summary is their description.
class FoldLine : public ThemedButton {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FoldLine)

public:
    explicit FoldLine(const QString& title, QWidget* parent = nullptr);
    void setTitle(const QString& title);
    /// Shown while it is folded.
    void setSummary(const Summary& summary);
    const Summary& summary() const { return m_summary; }
    /// Emits nothing.
    void setOpen(bool open);
    bool isOpen() const { return m_open; }
    /// Screen readers hear of it; what is seen, the owner draws.
    void setEdited(bool edited);
    bool isEdited() const { return m_edited; }

signals:
    void openAsked(bool open);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// Turned as far as it has come.
    void paintChevron(QPainter& painter, const QRectF& place) const;
    /// Where the summary is drawn while the line is folded.
    virtual QRectF summaryRect() const = 0;
    /// What the tooltip says of what has no room otherwise.
    virtual QString hiddenText() const;
    /// To be called when something changed that decides what has room.
    void showToolTip();

private:
    void describe();

    Summary m_summary;
    bool m_open = false;
    bool m_edited = false;
    AnimatedValue m_turn;  ///< 0 folded, 1 open
};

}  // namespace Quorbel
