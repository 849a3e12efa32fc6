// How a segmented picker describes itself to screen readers: as a group of radio buttons, one of which is checked.
// Thread: the main thread.
#pragma once

#include <QAccessibleWidget>

namespace Quorbel {

class SegmentedPicker;

class SegmentedPickerAccess final : public QAccessibleWidget {
public:
    explicit SegmentedPickerAccess(SegmentedPicker* picker);
    ~SegmentedPickerAccess() override;

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;

private:
    SegmentedPicker* m_picker;
    mutable QList<QAccessible::Id> m_choices;
};

}  // namespace Quorbel
