// A keyword that some or all of several photos hold: how many do, and a cross that takes it away from all of them.
// Thread: the main thread. Knows no photos: what it shows is said, and what it asks for is a signal.
#pragma once

#include "ui/controls/Buttons.h"

#include <QStringList>

namespace Quorbel {

/// What a chip shows.
struct HeldKeyword {
    enum class By { all, some, gone };  ///< gone: it is to be taken away

    QString keyword{};
    QString count{};  ///< "12 of 40"; none when empty
    By by = By::some;
    QString spoken{};  ///< "autumn, in 31 of 40"
    QString toolTip{};  ///< where it stands in trees of keywords; none when empty
    bool operator==(const HeldKeyword&) const = default;
};

/// In a cell 28 points high. A press asks for the keyword to be added to all, or to be kept; its cross, Delete and
/// Backspace ask for it to be taken away, or to be kept.
class HeldKeywordChip final : public ThemedButton {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HeldKeywordChip)

public:
    explicit HeldKeywordChip(QWidget* parent);
    void setHeld(const HeldKeyword& held);
    const HeldKeyword& held() const { return m_held; }
    /// In less room the keyword ends in "…", and the tooltip tells it.
    QSize sizeHint() const override;

signals:
    /// Of one that is to be taken away: keep it.
    void crossed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showToolTip();

    HeldKeyword m_held{};
    QBIconButton* m_cross;
};

}  // namespace Quorbel
