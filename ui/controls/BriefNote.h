// A few words over the lower edge of a window or a list, for a moment: what a key did where nothing else shows it.
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
    /// Hidden until there is something to say. Then it lies over the host's other children, and stays in its place
    /// when the host gets another size. `overEdge`: how far above the host's lower edge, in points.
    explicit BriefNote(QWidget* host, qreal overEdge = 72);
    /// In the place of what it says now. Screen readers say it, too.
    void say(const QString& text);
    const QString& text() const { return m_text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int wantedWidth() const;
    void place();

    qreal m_overEdge;
    QString m_text;
    QTimer m_leaves;
    AnimatedValue m_opacity;
};

}  // namespace Quorbel
