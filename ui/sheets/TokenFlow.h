// Token chips, as high as their lines. Thread: the main thread.
#pragma once

#include <QWidget>

#include <functional>

namespace Quorbel {

class TokenFlow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TokenFlow)

public:
    explicit TokenFlow(QWidget* parent = nullptr);
    /// Adds a chip. A click leaves the caret where it is; Tab still reaches the chip.
    void add(const QString& label, const QString& toolTip, const std::function<void()>& insert);

    /// It has the height of its lines at any time, so that what lies below may give way.
    bool hasHeightForWidth() const override { return false; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();
};

}  // namespace Quorbel
