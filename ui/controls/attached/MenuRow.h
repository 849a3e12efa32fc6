// A row of a menu that stays open: a title, a count or keys at its right end, and a box where it can be ticked.
// Thread: the main thread. Knows nothing of what it stands for.
#pragma once

#include "ui/controls/Buttons.h"

namespace Quorbel {

/// 28 points high. It only shows: a click, Space or Return emits clicked(), and whoever listens decides what `checked`
/// becomes. Dark while the keyboard is on it; the pointer brings the keyboard along, but not out of a text field.
class MenuRow final : public ThemedButton {
    Q_OBJECT

public:
    MenuRow(const QString& title, bool ticks, QWidget* parent = nullptr);
    /// At the right end.
    void setTrailing(const QString& text);
    const QString& trailing() const { return m_trailing; }
    /// Drawn in `muted`: it would find nothing.
    void setQuiet(bool quiet);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void nextCheckState() override { }

private:
    void paintBoxAt(QPainter& painter, const QRectF& box) const;

    QString m_trailing;
    bool m_quiet = false;
};

}  // namespace Quorbel
