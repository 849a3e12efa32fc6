#include "ui/controls/pickers/SegmentedPickerAccess.h"

#include "ui/controls/pickers/SegmentedPicker.h"

#include <QPointer>

#include <memory>

namespace Quorbel {

namespace {

// Drawn by its picker, so not a widget.
class Choice final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    Choice(SegmentedPicker* picker, int index)
        : m_picker(picker)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_picker; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_picker); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::RadioButton; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text kind) const override
    {
        return m_picker && kind == QAccessible::Name ? m_picker->spoken(m_index) : QString();
    }

    QRect rect() const override
    {
        const QRect local = m_picker ? m_picker->segment(m_index).toRect() : QRect();
        return m_picker ? QRect(m_picker->mapToGlobal(local.topLeft()), local.size()) : local;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_picker || !m_picker->isVisible();
        state.disabled = m_picker && !m_picker->isEnabled();
        state.focusable = true;
        state.checkable = true;
        state.checked = m_picker && m_picker->currentIndex() == m_index;
        state.focused = state.checked && m_picker->hasFocus();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return { pressAction() }; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override
    {
        if (m_picker && m_picker->isEnabled() && name == pressAction())
            m_picker->pick(m_index);
    }

private:
    QPointer<SegmentedPicker> m_picker;
    int m_index;
};

}  // namespace

SegmentedPickerAccess::SegmentedPickerAccess(SegmentedPicker* picker)
    : QAccessibleWidget(picker, QAccessible::Grouping)
    , m_picker(picker)
{
}

SegmentedPickerAccess::~SegmentedPickerAccess()
{
    for (const QAccessible::Id id : std::as_const(m_choices))
        QAccessible::deleteAccessibleInterface(id);
}

QString SegmentedPickerAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_picker->spoken(m_picker->currentIndex()) : QAccessibleWidget::text(kind);
}

int SegmentedPickerAccess::childCount() const
{
    return int(m_picker->titles().size());
}

QAccessibleInterface* SegmentedPickerAccess::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_choices.size() <= index) {
        // Qt owns what is registered, until it is told to delete it.
        auto choice = std::make_unique<Choice>(m_picker, int(m_choices.size()));
        m_choices.append(QAccessible::registerAccessibleInterface(choice.release()));
    }
    return QAccessible::accessibleInterface(m_choices.at(index));
}

int SegmentedPickerAccess::indexOfChild(const QAccessibleInterface* child) const
{
    for (int choice = 0; choice < m_choices.size(); ++choice)
        if (QAccessible::accessibleInterface(m_choices.at(choice)) == child)
            return choice;
    return -1;
}

QAccessibleInterface* SegmentedPickerAccess::focusChild() const
{
    return m_picker->hasFocus() ? child(m_picker->currentIndex()) : QAccessibleWidget::focusChild();
}

}  // namespace Quorbel
