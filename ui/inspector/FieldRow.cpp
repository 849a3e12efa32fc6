#include "ui/inspector/FieldRow.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/text/CountLine.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/FieldBlock.h"
#include "ui/inspector/RowExtras.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 7;
constexpr qreal labelWidth = 104;
constexpr qreal languageIndent = 12;
constexpr qreal rowHeight = 30;
constexpr qreal firstLineDrop = 3;  // of a text area's first line below that of a text field
constexpr qreal lineGap = 4;
constexpr qreal stackedBelow = 370;  // narrower rows have their label over the editor
constexpr qreal stackedLabel = 20;
constexpr qreal areaHeight = 54;
constexpr qreal ratingWidth = 130;

// What the field is for, as a sentence.
QString purposeOf(const FieldSpec& field)
{
    //: A note as a sentence: %1 is its text, and what follows ends it.
    return Texts::tr("%1.").arg(Texts::shown(field.addNote));
}

}  // namespace

FieldRow::FieldRow(const FieldRowParts& parts, QWidget* parent)
    : QWidget(parent)
    , m_kind(parts.kind)
    , m_isLanguage(parts.isLanguage)
    , m_isWide(parts.kind == FieldKind::structure)
    , m_isAlone(m_isWide && parts.isAlone)
    , m_purpose(parts.mostCharacters > 0 && !parts.isLanguage ? purposeOf(*parts.field) : QString())
    , m_editor(makeRowEditor(parts, *this))
    , m_line(new QHBoxLayout(this))
    , m_column(new QVBoxLayout)
    , m_label(new TwoLineLabel(TextRole::label, parts.isLanguage ? 12 : 13))
    , m_extras(new RowExtras(*this, m_editor, *m_label, *m_column))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    m_label->setBuddy(m_editor.input);
    m_label->setVerbatim(true);  // of a custom field it was typed
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->addWidget(m_label, 0, Qt::AlignTop);
    m_line->addLayout(m_column, 1);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->addWidget(m_editor.widget);
    if (m_isWide)
        addHead();
    if (parts.mostCharacters > 0)
        addCount(parts.mostCharacters);
    m_column->addStretch();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    onRestyle(this, [this] { restyle(); });
}

void FieldRow::addHead()
{
    m_line->removeWidget(m_label);
    m_head = new QHBoxLayout;
    m_head->addWidget(m_label, 1, Qt::AlignTop);
    m_under = new QVBoxLayout;
    m_column->insertLayout(0, m_head);
    m_column->addLayout(m_under);
}

void FieldRow::addCount(int limit)
{
    m_count = new CountLine(m_purpose, limit, this);
    m_column->addWidget(m_count);
    if (auto* area = qobject_cast<QBTextArea*>(m_editor.input))
        m_count->follow(*area);
}

void FieldRow::restyle()
{
    const int drop = isMultiline() && !m_stacked ? px(firstLineDrop) : 0;
    const int height = px(m_stacked ? stackedLabel : rowHeight);
    m_label->setContentsMargins(mirrored(QMargins(m_isLanguage ? px(languageIndent) : 0, drop, 0, 0)));
    m_label->setFixedHeight(height + drop);
    const bool isOver = m_stacked || m_isWide;  // the label over the editor
    m_label->setMinimumWidth(isOver ? 0 : px(labelWidth));
    m_label->setMaximumWidth(isOver ? QWIDGETSIZE_MAX : px(labelWidth));
    m_line->setSpacing(px(gap));
    m_column->setSpacing(px(lineGap));
    if (m_head) {
        m_head->setContentsMargins(mirrored(QMargins(px(EditedDot::room), 0, 0, 0)));
        m_head->setSpacing(px(gap));
        m_under->setContentsMargins(mirrored(QMargins(px(EditedDot::room), 0, 0, 0)));
        m_under->setSpacing(px(lineGap));
    }
    if (m_tick)
        m_tick->setFixedSize(px(16), height + 2 * drop);
    if (m_block)
        m_block->setFixedHeight(px(isMultiline() ? areaHeight : rowHeight));
    if (m_block && m_kind == FieldKind::rating)
        m_block->setFixedWidth(px(ratingWidth));
    setStacked(contentsRect().width() < px(stackedBelow));
}

void FieldRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setStacked(contentsRect().width() < px(stackedBelow));
}

void FieldRow::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    m_extras->setHovered(true);
}

void FieldRow::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    m_extras->setHovered(false);
}

void FieldRow::setStacked(bool stacked)
{
    if (m_isWide || stacked == std::exchange(m_stacked, stacked))
        return;
    if (stacked) {
        m_line->removeWidget(m_label);
        m_column->insertWidget(0, m_label);
    } else {
        m_column->removeWidget(m_label);
        m_line->insertWidget(m_tick ? 1 : 0, m_label, 0, Qt::AlignTop);
    }
    restyle();
    if (parentWidget())
        parentWidget()->update();  // it paints the dot
}

int FieldRow::dotCenter() const
{
    return m_stacked ? px(stackedLabel) / 2 : px(rowHeight) / 2 + (isMultiline() ? px(firstLineDrop) : 0);
}

QList<QWidget*> FieldRow::tabStops() const
{
    QList<QWidget*> stops = m_editor.changingStops ? m_editor.changingStops() : m_editor.tabStops;
    if (m_tick)
        stops.prepend(m_tick);
    stops.append(m_extras->stopsBesideEditor());
    if (m_remove)
        stops.append(m_remove);
    stops.append(m_extras->stopsBelow());
    return stops;
}

void FieldRow::setState(const FieldRowState& state, bool fresh)
{
    if (!fresh && state == m_state)
        return;
    const FieldRowState old = std::exchange(m_state, state);
    m_label->setText(state.label);
    m_label->setRole(state.unread ? TextRole::muted : TextRole::label);
    m_editor.show(state, fresh);
    showBlock();
    showHead();
    showTick();
    showRemove();
    showLines();
    m_extras->show(state);
    describe();
    if (old.edited != state.edited && parentWidget())
        parentWidget()->update();
}

void FieldRow::showBlock()
{
    if (m_state.unread && !m_block) {
        m_block = new FieldBlock(this);
        restyle();
        const auto side = m_kind == FieldKind::rating ? Qt::AlignLeft : Qt::Alignment();
        m_column->insertWidget(m_column->indexOf(m_editor.widget), m_block, 0, side);
    }
    // Never both at once, which would be higher than either.
    if (m_state.unread)
        m_editor.widget->hide();
    if (m_block) {
        m_block->setText(m_state.unreadText);
        m_block->setVisible(m_state.unread);
    }
    if (!m_state.unread)
        m_editor.widget->show();
    // Of texts that differ there is nothing to count.
    if (m_count)
        m_count->setVisible(!m_state.unread && !(m_state.text.isEmpty() && m_state.italicPlaceholder));
}

bool FieldRow::hasLabel() const
{
    return !m_isAlone || m_state.batch || m_state.isNamed;
}

void FieldRow::showHead()
{
    if (m_head)
        m_label->setVisible(hasLabel());
}

void FieldRow::showTick()
{
    if (m_state.batch && !m_tick) {
        m_tick = new QBCheckbox(this);
        m_tick->setAmber(true);
        restyle();
        (m_head ? m_head : m_line)->insertWidget(0, m_tick, 0, Qt::AlignTop);
        connect(m_tick, &QAbstractButton::clicked, this, &FieldRow::tickClicked);
        emit tabStopsChanged();
    }
    if (!m_tick)
        return;
    m_tick->setVisible(m_state.batch && !m_state.fixed);
    m_tick->setChecked(m_state.included);
    const QString& name = m_state.language.spoken.isEmpty() ? m_state.label : m_state.language.spoken;
    //: %1: name of a field.
    m_tick->setAccessibleName(Texts::tr("Write %1 to all selected files").arg(name));
}

void FieldRow::showRemove()
{
    if (m_state.removable && !m_remove) {
        m_remove = new QBIconButton(u"xmark.circle.fill"_s, Texts::tr("Remove this field"), this);
        m_remove->setSizes({ 22, rowHeight }, 15);
        m_remove->setQuiet(true);
        (m_head && !m_isAlone ? m_head : m_line)->addWidget(m_remove, 0, Qt::AlignTop);
        connect(m_remove, &QAbstractButton::clicked, this, &FieldRow::removeClicked);
        emit tabStopsChanged();
    }
    if (!m_remove)
        return;
    m_remove->setVisible(m_state.removable);
    if (!m_isLanguage)
        return m_remove->setAccessibleDescription(m_state.label);
    const bool isGone = m_state.language.isGone;
    m_remove->setIcon(isGone ? u"arrow.uturn.backward"_s : u"xmark.circle.fill"_s);
    //: %1: a language.
    m_remove->setName((isGone ? Texts::tr("Bring %1 back") : Texts::tr("Remove %1")).arg(m_state.label));
}

void FieldRow::showLines()
{
    showLine(Line::held, m_state.heldLine);
    showLine(Line::note, m_state.noteLine);
    showLine(Line::tags, m_state.namespaceLine);
    showLine(Line::help, m_state.helpLine);
}

void FieldRow::showLine(Line which, const QString& text)
{
    WrappedLine*& line = m_lines.at(size_t(which));
    if (!line && text.isEmpty())
        return;
    if (!line) {
        const bool tags = which == Line::tags;
        const TextRole plain = which == Line::held ? TextRole::label : TextRole::amberText;
        line = new WrappedLine(tags ? TextRole::muted : plain, tags ? 10.5 : 11, 15, this);
        line->setMono(tags);
        line->setVerbatim(tags);
        const auto above = std::count_if(m_lines.cbegin(), m_lines.cbegin() + int(which), [](auto* l) { return l; });
        if (m_under)
            m_under->insertWidget(int(above), line);
        else
            m_column->insertWidget(m_column->indexOf(m_extras->lastUnderEditor()) + 1 + int(above), line);
    }
    line->setText(text);
    line->setVisible(!text.isEmpty());
}

// For screen readers: what is seen around the editor.
void FieldRow::describe()
{
    QStringList told;
    if (m_state.edited && !m_state.batch)
        //: Spoken of a field or a section of them.
        told.append(Texts::tr("edited"));
    // A placeholder alone is not read aloud.
    if (m_state.batch && m_state.included && m_state.italicPlaceholder)
        told.append(m_state.placeholder);
    for (const QString& line :
        { m_purpose, m_state.heldLine, m_state.noteLine, m_state.helpLine, m_state.namespaceLine })
        if (!line.isEmpty())
            told.append(line);
    const QString description = told.join(u", "_s);
    const QString& name = m_state.language.spoken.isEmpty() ? m_state.label : m_state.language.spoken;
    if (m_editor.input->accessibleName() != name)
        m_editor.input->setAccessibleName(name);
    if (m_editor.input->accessibleDescription() != description)
        m_editor.input->setAccessibleDescription(description);
}

}  // namespace Quorbel
