#include "ui/controls/Accessibility.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/attached/MenuRow.h"
#include "ui/controls/cards/FoldLine.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/pickers/CodePicker.h"
#include "ui/controls/pickers/OffsetPicker.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/pickers/SegmentedPickerAccess.h"
#include "ui/controls/tokens/TokenEdit.h"
#include "ui/controls/tokens/TokenEditAccess.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <QSet>

#include <functional>
#include <memory>

namespace Quorbel {

namespace {

// What dropped down from the widget and is open: Qt counts no windows among a widget's children, and no popups among
// the program's windows.
QList<QWidget*> openPopups(const QWidget* widget)
{
    QList<QWidget*> popups = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    popups.removeIf([](const QWidget* child) { return child->windowType() != Qt::Popup || !child->isVisible(); });
    return popups;
}

// Buttons, check boxes, switches: what they are called, whether they are on, and how to press them.
class ButtonDescription : public QAccessibleWidget {
public:
    ButtonDescription(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role)
        , m_button(button)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_button->accessibleName().isEmpty())
            return m_button->text();
        const QString told = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Description)
            return told;
        // A tooltip that begins with the name says nothing new there.
        const QString name = text(QAccessible::Name);
        const bool repeats = told == name || told.startsWith(name + QLatin1Char('\n'));
        return repeats ? told.mid(name.size() + 1) : told;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_button->isCheckable();
        state.checked = m_button->isChecked();
        state.pressed = m_button->isDown();
        return state;
    }

    int childCount() const override { return QAccessibleWidget::childCount() + int(openPopups(m_button).size()); }

    QAccessibleInterface* child(int index) const override
    {
        const int before = QAccessibleWidget::childCount();
        if (index < before)
            return QAccessibleWidget::child(index);
        return QAccessible::queryAccessibleInterface(openPopups(m_button).value(index - before));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const qsizetype popup = openPopups(m_button).indexOf(qobject_cast<QWidget*>(child ? child->object() : nullptr));
        return popup < 0 ? QAccessibleWidget::indexOfChild(child) : QAccessibleWidget::childCount() + int(popup);
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button->isEnabled())
            names.prepend(m_button->isCheckable() ? toggleAction() : pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction() || name == toggleAction())
            m_button->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton* m_button;
};

// A line that folds what is below it.
class FoldDescription final : public ButtonDescription {
public:
    explicit FoldDescription(FoldLine* line)
        : ButtonDescription(line, QAccessible::Button)
        , m_line(line)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ButtonDescription::state();
        state.expandable = true;
        state.expanded = m_line->isOpen();
        state.collapsed = !m_line->isOpen();
        return state;
    }

    // The tooltip repeats it.
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Description)
            return ButtonDescription::text(kind);
        // An empty card sums itself up by what it is called.
        const QString told = m_line->accessibleDescription();
        return told == text(QAccessible::Name) ? QString() : told;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_line->isEnabled())
            names.prepend(toggleAction());
        return names;
    }

private:
    FoldLine* m_line;
};

// A field with one of several choices. What it shows is its value, and a text that can be read letter by letter: the
// way in which assistive tools of this platform ask for it.
class ChoiceDescription : public ButtonDescription, public QAccessibleTextInterface {
public:
    explicit ChoiceDescription(QAbstractButton* button)
        : ButtonDescription(button, QAccessible::ComboBox)
        , m_button(button)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return ButtonDescription::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return m_button->accessibleName();
        return kind == QAccessible::Value ? m_button->text() : ButtonDescription::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ButtonDescription::state();
        state.hasPopup = true;
        return state;
    }

    QString text(int start, int end) const override { return m_button->text().mid(start, end - start); }
    int characterCount() const override { return int(m_button->text().size()); }
    int selectionCount() const override { return 0; }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override { }

    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    QAbstractButton* m_button;
};

// One with a code: its value is the name of the code.
class CodeDescription final : public ChoiceDescription {
public:
    explicit CodeDescription(CodePicker* picker)
        : ChoiceDescription(picker)
        , m_picker(picker)
    {
    }

    using ChoiceDescription::text;
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Description)
            return ChoiceDescription::text(kind);
        QStringList told{ m_picker->code().isEmpty() ? m_picker->placeholder() : QString(),
            m_picker->accessibleDescription() };
        told.removeAll({});
        return told.join(QLatin1String(", "));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ChoiceDescription::state();
        state.expandable = true;
        state.expanded = m_picker->isOpen();
        state.collapsed = !m_picker->isOpen();
        return state;
    }

private:
    CodePicker* m_picker;
};

// A number between two limits.
struct NumberAccess {
    std::function<double()> get{};
    std::function<void(double)> set{};
    double minimum = 0;
    double maximum = 0;
    double step = 1;
};

class NumberDescription final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    NumberDescription(QWidget* widget, QAccessible::Role role, NumberAccess access)
        : QAccessibleWidget(widget, role)
        , m_access(std::move(access))
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_access.get(); }
    void setCurrentValue(const QVariant& value) override { m_access.set(value.toDouble()); }
    QVariant minimumValue() const override { return m_access.minimum; }
    QVariant maximumValue() const override { return m_access.maximum; }
    QVariant minimumStepSize() const override { return m_access.step; }

private:
    NumberAccess m_access;
};

QAccessibleInterface* describeRating(RatingEditor* rating)
{
    const auto get = [rating] { return double(rating->rating()); };
    const auto set = [rating](double value) { rating->choose(int(value)); };
    return new NumberDescription(rating, QAccessible::Slider, { get, set, 0, 5, 1 });
}

QAccessibleInterface* describeHandle(ResizeHandle* handle)
{
    const auto get = [handle] { return handle->columnWidth(); };
    const auto set = [handle](double value) { handle->choose(value); };
    return new NumberDescription(
        handle, QAccessible::Splitter, { get, set, handle->minWidth(), handle->maxWidth(), 10 });
}

// One suggestion: drawn by its list, so not a widget.
class SuggestionRowDescription final : public QAccessibleInterface {
public:
    SuggestionRowDescription(SuggestionList* list, int row)
        : m_list(list)
        , m_row(row)
    {
    }

    bool isValid() const override { return m_list && m_row < m_list->rows().size(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_list); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description))
            return {};
        const SuggestionRow& row = m_list->rows().at(m_row);
        if (!row.spoken.isEmpty())
            return kind == QAccessible::Name ? row.spoken : QString();
        return kind == QAccessible::Name ? row.title : row.subtitle;
    }

    QRect rect() const override
    {
        const QRect local = isValid() ? m_list->rowRect(m_row) : QRect();
        return { m_list->mapToGlobal(local.topLeft()), local.size() };
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.focusable = true;
        state.selected = isValid() && m_list->currentRow() == m_row;
        state.focused = state.selected;
        state.invisible = !isValid();
        return state;
    }

private:
    QPointer<SuggestionList> m_list;
    int m_row;
};

class SuggestionListDescription final : public QAccessibleWidget {
public:
    explicit SuggestionListDescription(SuggestionList* list)
        : QAccessibleWidget(list, QAccessible::List)
        , m_list(list)
    {
    }

    ~SuggestionListDescription() override
    {
        for (const QAccessible::Id id : std::as_const(m_rows))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return int(m_list->rows().size()); }

    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (m_rows.size() <= index) {
            // Qt owns what is registered, until it is told to delete it.
            auto row = std::make_unique<SuggestionRowDescription>(m_list, int(m_rows.size()));
            m_rows.append(QAccessible::registerAccessibleInterface(row.release()));
        }
        return QAccessible::accessibleInterface(m_rows.at(index));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int row = 0; row < m_rows.size(); ++row) {
            if (QAccessible::accessibleInterface(m_rows.at(row)) == child)
                return row;
        }
        return -1;
    }

private:
    SuggestionList* m_list;
    mutable QList<QAccessible::Id> m_rows;
};

QAccessibleInterface* describeButton(QAbstractButton* button)
{
    if (auto* line = qobject_cast<FoldLine*>(button))
        return new FoldDescription(line);
    if (auto* picker = qobject_cast<CodePicker*>(button))
        return new CodeDescription(picker);
    if (qobject_cast<QBCheckbox*>(button) || qobject_cast<QBSwitch*>(button))
        return new ButtonDescription(button, QAccessible::CheckBox);
    if (qobject_cast<MenuRow*>(button) && button->isCheckable())
        return new ButtonDescription(button, QAccessible::CheckBox);
    if (qobject_cast<OffsetPicker*>(button) || qobject_cast<ChoicePicker*>(button))
        return new ChoiceDescription(button);
    return new ButtonDescription(button, QAccessible::Button);
}

// The tooltip of one that is shortened holds its text, which is its name already.
class LabelDescription final : public QAccessibleWidget {
public:
    explicit LabelDescription(ThemedLabel* label)
        : QAccessibleWidget(label, QAccessible::StaticText)
        , m_label(label)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return m_label->accessibleName().isEmpty() ? m_label->text() : m_label->accessibleName();
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Description && told == text(QAccessible::Name) ? QString() : told;
    }

    QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match = QAccessible::AllRelations) const override
    {
        auto found = QAccessibleWidget::relations(match);
        QAccessibleInterface* labelled = QAccessible::queryAccessibleInterface(m_label->buddy());
        if ((match & QAccessible::Labelled) && labelled)
            found.append({ labelled, QAccessible::Labelled });
        return found;
    }

private:
    ThemedLabel* m_label;
};

QHash<const QMetaObject*, QAccessible::Role>& rolesOfClasses()
{
    static QHash<const QMetaObject*, QAccessible::Role> roles;
    return roles;
}

QSet<const QMetaObject*>& orderedClasses()
{
    static QSet<const QMetaObject*> classes;
    return classes;
}

QAccessibleInterface* describe(const QString& className, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    // Qt asks for the class and then for each of its bases: answer for the class itself only.
    if (!widget || className != QLatin1String(object->metaObject()->className()))
        return nullptr;
    if (auto* button = qobject_cast<ThemedButton*>(object))
        return describeButton(button);
    if (auto* rating = qobject_cast<RatingEditor*>(object))
        return describeRating(rating);
    if (auto* handle = qobject_cast<ResizeHandle*>(object))
        return describeHandle(handle);
    if (auto* picker = qobject_cast<SegmentedPicker*>(object))
        return new SegmentedPickerAccess(picker);
    if (auto* list = qobject_cast<SuggestionList*>(object))
        return new SuggestionListDescription(list);
    if (auto* edit = qobject_cast<TokenEdit*>(object))
        return new TokenEditAccess(edit);
    for (const QMetaObject* type = object->metaObject(); type; type = type->superClass()) {
        const auto role = rolesOfClasses().constFind(type);
        if (role == rolesOfClasses().cend())
            continue;
        if (orderedClasses().contains(type))
            return new InReadingOrder(widget, *role);
        return new RoleDescription(widget, *role);
    }
    if (auto* label = qobject_cast<ThemedLabel*>(object))
        return new LabelDescription(label);
    return nullptr;
}

}  // namespace

void installAccessibility()
{
    QAccessible::installFactory(&describe);
}

void describeAs(const QMetaObject& widgetClass, QAccessible::Role role)
{
    installAccessibility();
    rolesOfClasses().insert(&widgetClass, role);
}

void describeInReadingOrder(const QMetaObject& widgetClass, QAccessible::Role role)
{
    describeAs(widgetClass, role);
    orderedClasses().insert(&widgetClass);
}

}  // namespace Quorbel
