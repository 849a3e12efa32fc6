// A few words over the lower edge of a window, for a moment: what a key did where nothing else shows it.
// Thread: the main thread. Takes neither keyboard nor mouse.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QTimer>
#include <QWidget>

namespace Quorbel {

class BriefNote final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BriefNote)

public:
    /// Hidden until there is something to say. Lies over the parent's other children, as they are then.
    explicit BriefNote(QWidget* parent);
    /// In the place of what it says now. Screen readers say it, too.
    void say(const QString& text);
    const QString& text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QTimer m_leaves;
    AnimatedValue m_opacity;
};

}  // namespace Quorbel
