// How a widget describes itself to screen readers whose parts stand otherwise than they were made: in the order in
// which they are read. Thread: the main thread.
#pragma once

#include <QAccessibleWidget>

namespace Quorbel {

/// A role and nothing more than QWidget says. Parts come line by line from the top, in each from the left; those that
/// are hidden come last.
class InReadingOrder : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QAccessibleInterface*> parts() const;
};

}  // namespace Quorbel
