// The notice at the bottom of the window while AppModel holds an error message.
// Thread: the main thread. It hides only when the message goes; its cross takes the message away.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QWidget>

namespace Quorbel {

class AppModel;
class QBIconButton;

class ErrorBanner final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ErrorBanner)

public:
    explicit ErrorBanner(AppModel& model, QWidget* parent = nullptr);

    /// Lays it out centred in its parent, its lower edge at `bottom`; at most 560 points wide.
    void place(int bottom);

signals:
    /// It appeared, went, or took another size: place() it again.
    void sizeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    void fadeIn();
    void showOpacity();
    QString message() const;
    QRect textRect() const;

    AppModel& m_model;
    QStringList m_lines;  ///< of the message, as place() broke it
    AnimatedValue m_opacity;
    QWidget* m_shadow;  ///< paints the shadow
    QBIconButton* m_close;
};

}  // namespace Quorbel
