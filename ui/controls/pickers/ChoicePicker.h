// A menu button that shows one of a few choices. Thread: the main thread. What they are, its owner says.
#pragma once

#include "ui/controls/Buttons.h"

#include <QStringList>

namespace Quorbel {

/// In the look of a field, 30 points high. Up and Down, Space and Return open its list at the current choice.
class ChoicePicker final : public ThemedButton {
    Q_OBJECT

public:
    /// `width` in points.
    ChoicePicker(const QString& name, qreal width, QWidget* parent = nullptr);
    void setTitles(const QStringList& titles);
    /// May grow to this many points where its titles need them; as wide as it was made otherwise.
    void setWidest(qreal points);
    const QStringList& titles() const { return m_titles; }
    /// Emits nothing.
    void setCurrent(int index);
    int current() const { return m_current; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openList();

    QStringList m_titles;
    int m_current = -1;
    qreal m_width;
    qreal m_widest = 0;
};

}  // namespace Quorbel
