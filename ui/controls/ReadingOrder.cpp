#include "ui/controls/ReadingOrder.h"

#include <QWidget>

#include <algorithm>
#include <tuple>

namespace Quorbel {

// The tooltip, which Qt takes for a description, repeats what the name says.
QString RoleDescription::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Description ? widget()->accessibleDescription() : QAccessibleWidget::text(kind);
}

QList<QAccessibleInterface*> InReadingOrder::parts() const
{
    QList<QAccessibleInterface*> parts;
    for (int i = 0; i < childCount(); ++i)
        parts.append(QAccessibleWidget::child(i));
    const auto place = [](QAccessibleInterface* part) {
        const auto* widget = part ? qobject_cast<const QWidget*>(part->object()) : nullptr;
        if (!widget || widget->isHidden())
            return std::tuple(true, 0, 0);
        return std::tuple(false, widget->y(), widget->x());
    };
    std::stable_sort(parts.begin(), parts.end(), [&place](auto* a, auto* b) { return place(a) < place(b); });
    return parts;
}

QAccessibleInterface* InReadingOrder::child(int index) const
{
    return parts().value(index);
}

int InReadingOrder::indexOfChild(const QAccessibleInterface* child) const
{
    return int(parts().indexOf(const_cast<QAccessibleInterface*>(child)));
}

}  // namespace Quorbel
