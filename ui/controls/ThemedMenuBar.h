// A menu bar in our own look, for the left end of the window's bar. Thread: the main thread.
#pragma once

#include <QMenuBar>

namespace Quorbel {

/// A QMenuBar that paints itself, 28 points high; menus, mnemonics, keyboard and accessibility are QMenuBar's.
class ThemedMenuBar final : public QMenuBar {
    Q_OBJECT

public:
    explicit ThemedMenuBar(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Quorbel
