#include "ui/controls/pickers/CodesPicker.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/WalkedFlow.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/controls/pickers/CodePopover.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr int side = 3;  // pixels between the frame and the chips
constexpr qreal gap = 2;  // points between chips
}  // namespace

CodesPicker::CodesPicker(const QString& name, const QString& add, QWidget* parent)
    : QWidget(parent)
    , m_add(add)
    , m_flow(new WalkedFlow(gap, this))
    , m_button(new QBTextButton(add, this))
    , m_fade(new HoverFade(this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Grouping);
    setAccessibleName(name);
    m_flow->setAccessibleName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(side, 1, side, 1);
    column->addWidget(m_flow);
    m_ring = installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    m_button->setLeadingIcon(u"plus"_s);
    m_button->installEventFilter(m_ring);
    m_button->installEventFilter(this);
    connect(m_button, &QAbstractButton::clicked, this, &CodesPicker::openList);
    onRestyle(this, [this] {
        setMinimumHeight(px(30));
        showCodes();
    });
}

void CodesPicker::setSource(const CodeSource& source)
{
    m_source = source;
    showCodes();
}

void CodesPicker::setCodes(const QStringList& codes)
{
    if (codes == m_codes)
        return;
    m_codes = codes;
    showCodes();
}

void CodesPicker::setPlaceholder(const QString& text)
{
    m_placeholder = text;
    showCodes();
}

void CodesPicker::setAmber(bool amber)
{
    m_amber = amber;
    showCodes();
}

void CodesPicker::setEdited(bool edited)
{
    m_edited = edited;
    showCodes();
}

void CodesPicker::setWanted(bool wanted)
{
    m_wanted = wanted;
    update();
}

KeywordChip* CodesPicker::makeChip()
{
    auto* chip = new KeywordChip(m_flow);
    chip->installEventFilter(m_ring);
    chip->installEventFilter(this);
    connect(chip, &KeywordChip::crossed, this, [this, chip] { remove(int(m_chips.indexOf(chip))); });
    return chip;
}

void CodesPicker::showCodes()
{
    while (m_chips.size() < m_codes.size())
        m_chips.append(makeChip());
    const QList<KeywordChip*> gone = m_chips.mid(m_codes.size());
    m_chips = m_chips.mid(0, m_codes.size());
    for (qsizetype i = 0; i < m_chips.size(); ++i)
        m_chips.at(i)->setKeyword(m_source.shown(m_codes.at(i)), {}, m_amber || m_edited);
    const bool saysMore = m_codes.isEmpty() && !m_placeholder.isEmpty();
    m_button->setText(saysMore ? m_placeholder : m_add);
    m_button->setLeadingIcon(saysMore ? QString() : u"plus"_s);
    m_button->setAccessibleName(m_add);
    m_button->setAccessibleDescription(saysMore ? m_placeholder : QString());
    QList<QWidget*> items(m_chips.cbegin(), m_chips.cend());
    m_flow->setItems(items << m_button);
    for (KeywordChip* chip : gone)
        chip->deleteLater();  // its own cross may be what removed it
    update();
}

QWidget* CodesPicker::input() const
{
    return m_button;
}

QList<QWidget*> CodesPicker::tabStops() const
{
    return m_flow->tabStops();
}

void CodesPicker::remove(int index)
{
    if (index >= 0 && index < m_codes.size())
        emit removed(QString(m_codes.at(index)));
}

void CodesPicker::openList()
{
    auto* list = new CodePopover(accessibleName(), m_source, m_codes, false, m_button);
    connect(list, &CodePopover::picked, this, [this](const QString& code) {
        if (m_codes.contains(code))
            emit removed(code);
        else
            emit added(code);
    });
    list->openAt(*this);
}

bool CodesPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const int index = int(m_chips.indexOf(static_cast<KeywordChip*>(watched)));
    const bool removes = key->key() == Qt::Key_Delete || key->key() == Qt::Key_Backspace;
    if (removes && index >= 0) {
        remove(index);
        return true;
    }
    // As pickers of one code do, where there is no line of chips below.
    if (key->key() == Qt::Key_Down && watched == m_button && !key->modifiers()) {
        openList();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CodesPicker::mousePressEvent(QMouseEvent*)
{
    m_button->setFocus(Qt::MouseFocusReason);
    openList();
}

void CodesPicker::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    const QWidget* focus = focusWidget();
    const bool isFocused = focus && isAncestorOf(focus) && focus->hasFocus();
    paintFieldFrame(painter, rect(),
        { isEnabled(), isFocused, m_edited, m_fade->hover(), m_wanted && m_codes.isEmpty() }, Theme::of(this));
}

}  // namespace Quorbel
