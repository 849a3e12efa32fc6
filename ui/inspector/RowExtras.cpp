#include "ui/inspector/RowExtras.h"

#include "core/details/FileHome.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/attached/CodesChip.h"
#include "ui/controls/attached/MarkButton.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/homes/HomesPopover.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal markRise = 1;  // into the gap under the editor
constexpr qreal addSide = 8;  // from the button's edge to its icon
constexpr qreal chipGap = 4;  // around the chip in its field
constexpr qreal offerSize = 22;
constexpr qreal mostOfField = .45;  // for the chip

// Has a button's icon in line with the editor: its ground hangs out at the left, as far as there is room.
class HangingItem final : public QWidgetItem {
public:
    HangingItem(QAbstractButton* button, qreal hang, qreal rise)
        : QWidgetItem(button)
        , m_hang(hang)
        , m_rise(rise)
    {
    }

    QSize sizeHint() const override
    {
        return isEmpty() ? QSize(0, 0) : QSize(0, wid->sizeHint().height() - px(m_rise));
    }
    QSize minimumSize() const override { return sizeHint(); }
    QSize maximumSize() const override { return { QLAYOUTSIZE_MAX, sizeHint().height() }; }
    void setGeometry(const QRect& place) override
    {
        const QWidget* row = widget()->parentWidget();
        const QRect room = mirrored(place, row);
        const QSize size = widget()->sizeHint();
        const int left = qMax(0, room.left() - px(m_hang));
        const int width = qMin(size.width(), room.right() + 1 - left);
        widget()->setGeometry(mirrored(QRect(left, room.top() - px(m_rise), width, size.height()), row));
    }

private:
    qreal m_hang;
    qreal m_rise;
};

QString languageKeys()
{
    return QKeySequence(Qt::ALT | Qt::Key_Right).toString(QKeySequence::NativeText);
}

// "2 of 3 places differ"
QString placesText(const QList<FieldHome>& homes)
{
    const auto isShown = [](const FieldHome& home) { return home.isShown; };
    const auto differing = homes.size() - std::count_if(homes.cbegin(), homes.cend(), isShown);
    const auto shown = std::find_if(homes.cbegin(), homes.cend(), isShown);
    const bool isOther = shown != homes.cend() && shown->isForeign && !FileHome::is(*shown);
    //: Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.
    const QString text = isOther
        ? Texts::tr("%n of %1 places (differs|differ), another standard’s is shown", nullptr, differing)
        //: Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.
        : Texts::tr("%n of %1 places (differs|differ)", nullptr, differing);
    return text.arg(homes.size());
}

}  // namespace

RowExtras::RowExtras(FieldRow& row, const RowEditor& editor, TwoLineLabel& label, QVBoxLayout& column)
    : QObject(&row)
    , m_row(row)
    , m_editor(editor)
    , m_label(label)
    , m_column(column)
{
    editor.widget->installEventFilter(this);
}

void RowExtras::show(const FieldRowState& state)
{
    m_places = state.places;
    m_languages = state.languages;
    showMark(state);
    showChip(state);
    showAdding(state);
    showActions(state);
    offer();
    place();
}

QWidget* RowExtras::lastUnderEditor() const
{
    return m_mark ? m_mark : m_editor.widget;
}

// --- Places that disagree ---

void RowExtras::showMark(const FieldRowState& state)
{
    const bool isMarked = !m_places.homes.isEmpty() && !state.unread;
    if (isMarked && !m_mark) {
        m_mark = new MarkButton(u"not.equal"_s, &m_row);
        m_column.insertItem(
            m_column.indexOf(m_editor.widget) + 1, new HangingItem(m_mark, MarkButton::sidePadding, markRise));
        connect(m_mark, &QAbstractButton::clicked, this, &RowExtras::openPlaces);
        emit m_row.tabStopsChanged();
    }
    if (!m_mark)
        return;
    if (isMarked) {
        m_mark->setText(placesText(m_places.homes));
        m_mark->setAccessibleName(Texts::tr("%1: %2").arg(state.label, m_mark->text()));
    } else if (m_mark->hasFocus()) {
        m_editor.input->setFocus(Qt::OtherFocusReason);
    }
    m_mark->setVisible(isMarked);
    if (!m_popover)
        return;
    if (!isMarked)
        m_popover->close();
    else
        m_popover->setHomes(m_places.homes);
}

void RowExtras::openPlaces()
{
    m_popover = new HomesPopover(m_row.state().label, m_mark);
    m_popover->setHomes(m_places.homes);
    m_popover->setCanAgree(m_places.canAgree);
    connect(m_popover, &HomesPopover::used, this, [this](const FieldHome& home) {
        m_editor.input->setFocus(Qt::OtherFocusReason);  // the mark goes
        emit m_row.homeUsed(home);
    });
    connect(m_popover, &HomesPopover::agreeAsked, &m_row, &FieldRow::agreeAsked);
    connect(m_popover, &Popover::closed, m_mark, [this] { m_mark->setOpen(false); });
    m_mark->setOpen(true);
    // Over the editor, where there is no room below: what is compared stays in sight.
    const QRect field = m_editor.widget->geometry();
    const QRect anchor =
        field.united(m_mark->geometry()).intersected(QRect(field.left(), 0, field.width(), m_row.height()));
    m_popover->open(QRect(m_row.mapToGlobal(anchor.topLeft()), anchor.size()), field.width());
}

// --- Languages ---

void RowExtras::showChip(const FieldRowState& state)
{
    const bool isThere = !m_languages.codes.isEmpty() && !state.unread;
    if (isThere && !m_chip) {
        m_chip = new CodesChip(m_editor.widget);
        connect(m_chip, &QAbstractButton::clicked, this, [this] { emit m_row.languagesAsked(!m_languages.isOpen); });
        emit m_row.tabStopsChanged();
    }
    if (!m_chip)
        return;
    if (isThere) {
        QList<CodesChip::Code> codes;
        QStringList told;
        for (const RowLanguages::Code& code : std::as_const(m_languages.codes)) {
            codes.append({ code.text, code.isGone });
            //: %1: code of a language, as “de”.
            told.append(code.isGone ? Texts::tr("%1 (will be taken away)").arg(code.text) : code.text);
        }
        m_chip->setCodes(codes);
        m_chip->setChecked(m_languages.isOpen);
        m_chip->setEdited(m_languages.isEdited);
        //: %1: name of a field, %2: codes of languages, as “de, fr”.
        m_chip->setAccessibleName(Texts::tr("%1 in other languages: %2").arg(state.label, told.join(u", "_s)));
        //: %1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.
        m_chip->setToolTip(Texts::tr("Other languages: %1 (%2)").arg(told.join(u", "_s), languageKeys()));
    } else if (m_chip->hasFocus()) {
        m_editor.input->setFocus(Qt::OtherFocusReason);
    }
    m_chip->setVisible(isThere);
}

void RowExtras::showAdding(const FieldRowState& state)
{
    const bool isThere = state.language.isLast && !state.unread;
    if (isThere && !m_add) {
        m_add = new QBTextButton(Texts::tr("Add language"), &m_row);
        m_column.insertItem(m_column.count() - 1, new HangingItem(m_add, addSide, 0));
        m_add->setLeadingIcon(u"plus"_s);
        connect(m_add, &QAbstractButton::clicked, this, [this] { emit m_row.languageMenuAsked(m_add); });
        emit m_row.tabStopsChanged();
    }
    if (!m_add)
        return;
    m_add->setVisible(isThere);
}

void RowExtras::setHovered(bool on)
{
    m_isHovered = on;
    offer();
}

// In the editor's menu, and for its keyboard.
void RowExtras::showActions(const FieldRowState& state)
{
    const bool isLanguage = !state.language.code.isEmpty();
    if (!m_open && (isLanguage || m_languages.isPossible)) {
        connect(qApp, &QApplication::focusChanged, this, &RowExtras::offer);
        m_open = new QAction(m_editor.input);
        m_open->setShortcut(Qt::ALT | Qt::Key_Right);
        m_close = new QAction(Texts::tr("Hide Languages"), m_editor.input);
        m_close->setShortcut(Qt::ALT | Qt::Key_Left);
        for (QAction* action : { m_open, m_close })
            action->setShortcutContext(Qt::WidgetShortcut);
        m_editor.input->addActions({ m_open, m_close });
        connect(m_open, &QAction::triggered, this, [this] {
            if (m_languages.codes.isEmpty())
                emit m_row.languageMenuAsked(m_editor.widget);
            else
                emit m_row.languagesAsked(true);
        });
        connect(m_close, &QAction::triggered, this, [this] { emit m_row.languagesAsked(false); });
    }
    if (!m_open)
        return;
    const bool hasSome = !m_languages.codes.isEmpty();
    m_open->setText(hasSome ? Texts::tr("Show Languages") : Texts::tr("Add Language…"));
    m_open->setVisible(!isLanguage);
    m_open->setEnabled(!isLanguage);
    m_close->setVisible(isLanguage || m_languages.isOpen);
    m_close->setEnabled(m_close->isVisible());
}

// Where there is no other language yet, a small plus at the label, while the pointer or the keyboard is in the row.
void RowExtras::offer()
{
    const QWidget* focus = QApplication::focusWidget();
    const bool isOffered = m_languages.isPossible && m_languages.codes.isEmpty() && !m_row.state().unread
        && (m_isHovered || (focus && m_row.isAncestorOf(focus)));
    if (isOffered && !m_offer) {
        m_offer = new QBIconButton(u"plus"_s, Texts::tr("Add language"), &m_row);
        m_offer->setSizes({ offerSize, offerSize }, 12, 2.1, 6);
        m_offer->setHint(languageKeys());
        m_offer->setFocusPolicy(Qt::NoFocus);  // the keyboard has Alt+Right
        connect(m_offer, &QAbstractButton::clicked, this, [this] { emit m_row.languageMenuAsked(m_editor.widget); });
    }
    if (!m_offer)
        return;
    m_offer->setVisible(isOffered);
    place();
}

void RowExtras::setRoomAtEnd(int pixels)
{
    if (auto* field = qobject_cast<QBTextField*>(m_editor.input))
        field->setRoomAtEnd(pixels);
    else if (auto* area = qobject_cast<QBTextArea*>(m_editor.input))
        area->setRoomAtEnd(pixels);
}

// --- Where they are ---

void RowExtras::place()
{
    const QRect editor = m_editor.widget->rect();
    const bool hasChip = m_chip && !m_chip->isHidden();
    if (hasChip) {
        m_chip->setRoom(int(editor.width() * mostOfField));
        const QSize size = m_chip->sizeHint();
        const QRect place(QPoint(editor.right() + 1 - px(chipGap) - size.width(), px(chipGap)), size);
        m_chip->setGeometry(mirrored(place, m_editor.widget));
        m_chip->raise();
    }
    setRoomAtEnd(hasChip ? m_chip->width() + 2 * px(chipGap) : 0);
    if (m_offer && !m_offer->isHidden()) {
        const int side = px(offerSize);
        const QRect label = mirrored(m_label.geometry(), &m_row);
        m_offer->setGeometry(
            mirrored(QRect(label.right() + 1 - side, m_row.dotCenter() - side / 2, side, side), &m_row));
        m_offer->raise();
    }
}

QList<QWidget*> RowExtras::stopsBesideEditor() const
{
    return m_chip ? QList<QWidget*>{ m_chip } : QList<QWidget*>{};
}

QList<QWidget*> RowExtras::stopsBelow() const
{
    QList<QWidget*> stops;
    if (m_mark)
        stops.append(m_mark);
    if (m_add)
        stops.append(m_add);
    return stops;
}

bool RowExtras::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::Show)
        place();
    return QObject::eventFilter(watched, event);
}

}  // namespace Quorbel
