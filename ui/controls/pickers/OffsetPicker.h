// Picks a time-zone offset. Thread: the main thread. Which offsets there are, its owner says.
#pragma once

#include "ui/controls/Buttons.h"

#include <QStringList>

namespace Quorbel {

/// A menu button, 150×30 points, that shows the value or, for an empty one, the `blank` label. Its list offers `blank`
/// and the offsets, and opens at the value.
class OffsetPicker final : public ThemedButton {
    Q_OBJECT

public:
    OffsetPicker(const QStringList& offsets, const QString& blank, QWidget* parent = nullptr);
    /// Shows a value, among the offsets or not; emits nothing.
    void setValue(const QString& value);
    void setEdited(bool edited);
    /// As QBTextField::setWanted().
    void setWanted(bool wanted);
    QSize sizeHint() const override;
    /// In a narrow form the button gives way; the longest offset still fits.
    QSize minimumSizeHint() const override;

signals:
    void valueEdited(const QString& value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openList();
    void choose(const QString& value);

    QStringList m_offsets;
    QString m_blank;
    QString m_value;
    bool m_edited = false;
    bool m_wanted = false;
};

}  // namespace Quorbel
