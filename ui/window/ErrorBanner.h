// The notice at the bottom of the window while AppModel holds an error message.
// Thread: the main thread. It hides only when the message goes; its cross takes the message away. The message can be
// selected and copied, and scrolls when it is long.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QWidget>

namespace Quorbel {

class AppModel;
class QBIconButton;
class QBTextButton;
class SelectableText;

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
    void followOffer();
    void fadeIn();
    void showOpacity();
    QString message() const;

    AppModel& m_model;
    AnimatedValue m_opacity;
    QWidget* m_shadow;  ///< paints the shadow
    SelectableText* m_text;
    QBTextButton* m_offer;  ///< saves what the message says could be saved; Tab comes to it before the cross
    QBIconButton* m_close;
};

}  // namespace Quorbel
