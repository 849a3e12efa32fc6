// How a widget describes itself to screen readers by a role alone, and how one does whose parts stand otherwise than
// they were made: in the order in which they are read. Thread: the main thread.
#pragma once

#include <QAccessibleWidget>

namespace Quorbel {

/// As describeAs(), for a class whose widgets have their parts come line by line from the top, in each line from the
/// left; those that are hidden come last. Not for parts that stand in columns.
void describeInReadingOrder(const QMetaObject& widgetClass, QAccessible::Role role);

/// Nothing more than QWidget says.
class RoleDescription : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override;
};

class InReadingOrder final : public RoleDescription {
public:
    using RoleDescription::RoleDescription;

    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QAccessibleInterface*> parts() const;
};

}  // namespace Quorbel
