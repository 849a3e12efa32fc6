#include "ui/sheets/ShiftTimeSheet.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/timeshift/TimeShifting.h"
#include "core/language/Texts.h"
#include "core/text/WallClock.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/pickers/PickerButton.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sheets/ShiftTable.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal shiftWidth = 560;
constexpr qreal formHeight = 82;
constexpr qreal labelWidth = 125;
constexpr qreal numberWidth = 50;
constexpr qreal directionWidth = 149;
constexpr qreal leastDirectionWidth = 124;  // where text is large
constexpr qreal thumbnailSide = 42;
constexpr qreal thumbnailRadius = 6;
constexpr qreal noteHeight = 16;

constexpr TimeShifting::Way ways[] = { TimeShifting::Way::amount, TimeShifting::Way::knownPhoto,
    TimeShifting::Way::zone };

// The triangle in front of what is left alone.
class WarningSign final : public QWidget {
public:
    WarningSign()
    {
        onRestyle(this, [this] { setFixedSize(px(12), px(noteHeight)); });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        Icon::paint(painter, rect(), u"exclamationmark.triangle.fill"_s, pxF(12), Theme::of(this).derived.amberText);
    }
};

// A caption at the left, what it is of at the right.
QHBoxLayout* captioned(QWidget* owner, const QString& caption, QWidget* control)
{
    auto* line = new QHBoxLayout;
    auto* label = new ThemedLabel(caption, TextRole::label, 13);
    line->addWidget(label);
    line->addWidget(control, 1);
    line->setSpacing(0);
    onRestyle(owner, [label] { label->setFixedWidth(px(labelWidth)); });
    return line;
}

QVBoxLayout* formColumn(QWidget* form, qreal spacing)
{
    auto* column = new QVBoxLayout(form);
    column->setContentsMargins(0, 0, 0, 0);
    onRestyle(form, [column, spacing] { column->setSpacing(px(spacing)); });
    return column;
}

}  // namespace

ShiftTimeSheet::ShiftTimeSheet(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : SheetBody(parent)
    , m_pairing(model.pairing())
    , m_shifting(model.timeShifting())
    , m_photos(int(m_shifting.photos().size()))
    , m_way(new SegmentedPicker({ Texts::tr("By an amount"), Texts::tr("By a known photo"), Texts::tr("Time zone") }))
    , m_forms(new QStackedWidget)
    , m_direction(new SegmentedPicker(
          { Texts::tr("Later", "times become later"), Texts::tr("Earlier", "times become earlier") }))
    , m_help(new WrappedLine(TextRole::label, 11, 16))
    , m_knownName(new ThemedLabel({}, TextRole::text, 13))
    , m_knownClock(new ThemedLabel({}, TextRole::label, 11.5))
    , m_choose(new QBButton(Texts::tr("Choose…")))
    , m_knownTime(new QBTextField)
    , m_zone(new PickerButton(Texts::tr("Time zone")))
    , m_keepsClock(new QBCheckbox(Texts::tr("Keep the clock time"), nullptr))
    , m_table(new ShiftTable)
    , m_note(new ThemedLabel({}, TextRole::label, 11))
    , m_own(new QBTextButton(Texts::tr("Use each photo’s own", "time zone")))
    , m_warning(new WrappedLine(TextRole::amberText, 11, noteHeight))
    , m_shift(new QBButton(QString(), QBButtonKind::primary))
{
    m_way->setAccessibleName(Texts::tr("How to shift"));
    m_way->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (QWidget* form : { buildAmount(), buildKnown(thumbs), buildZone() })
        m_forms->addWidget(form);
    auto* dismiss = new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary);
    connect(dismiss, &QAbstractButton::clicked, this, &ShiftTimeSheet::cancel);
    connect(m_shift, &QAbstractButton::clicked, this, &ShiftTimeSheet::confirm);
    connect(m_way, &SegmentedPicker::picked, this, [this](int index) { m_shifting.setWay(ways[index]); });
    auto* column = new QVBoxLayout(this);
    stackParts(this, column,
        { { m_way, 16 }, { m_forms, 20 }, { new LabeledDivider(Texts::tr("BEFORE → AFTER")), 8 }, { m_table, 7 },
            { buildNotes(), 22 } });
    column->addLayout(sheetButtonRow(this, { dismiss, m_shift }));
    frameSheet(this, column, shiftWidth);
    onRestyle(this, [this] { m_forms->setFixedHeight(px(formHeight)); });
    connect(&m_shifting, &TimeShifting::changed, this, &ShiftTimeSheet::refresh);
    refresh();
}

QWidget* ShiftTimeSheet::buildAmount()
{
    auto* form = new QWidget;
    auto* column = formColumn(form, 7);
    auto* line = new QHBoxLayout;
    line->addWidget(m_direction);
    const std::pair<QString, QString> units[] = { { Texts::tr("d", "unit: days"), Texts::tr("Days") },
        { Texts::tr("h", "unit: hours"), Texts::tr("Hours") },
        { Texts::tr("min", "unit: minutes"), Texts::tr("Minutes") },
        { Texts::tr("s", "unit: seconds"), Texts::tr("Seconds") } };
    for (const auto& [unit, name] : units) {
        auto* number = new QBTextField;
        number->setMono(true);
        number->setAlignment(Qt::AlignRight);
        number->setPlaceholder(u"0"_s);
        number->setAccessibleName(name);
        connect(number, &QLineEdit::textEdited, this, &ShiftTimeSheet::takeAmount);
        onRestyle(number, [number] { number->setFixedWidth(px(numberWidth)); });
        m_amount.append(number);
        line->addWidget(number);
        line->addWidget(new ThemedLabel(unit, TextRole::label, 13));
    }
    line->addStretch();
    m_direction->setAccessibleName(Texts::tr("Direction"));
    m_direction->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_direction, &SegmentedPicker::picked, this, &ShiftTimeSheet::takeAmount);
    onRestyle(form, [this, line] {
        m_direction->setMinimumWidth(px(leastDirectionWidth));
        m_direction->setMaximumWidth(px(directionWidth));
        line->setSpacing(px(7));
    });
    column->addLayout(line);
    column->addWidget(m_help);
    column->addStretch();
    return form;
}

QWidget* ShiftTimeSheet::buildKnown(ThumbnailStore* thumbs)
{
    auto* form = new QWidget;
    auto* column = formColumn(form, 10);
    m_thumbnail = new ThumbnailView(thumbs, thumbnailSide, thumbnailRadius);
    m_knownName->setVerbatim(true);
    m_knownName->setElided(true);
    m_knownClock->setMono(true);
    auto* texts = new QVBoxLayout;
    texts->addStretch();
    texts->addWidget(m_knownName);
    texts->addWidget(m_knownClock);
    texts->addStretch();
    texts->setSpacing(0);
    auto* line = new QHBoxLayout;
    line->addWidget(m_thumbnail);
    line->addLayout(texts, 1);
    line->addWidget(m_choose);
    onRestyle(form, [line] { line->setSpacing(px(10)); });
    m_knownTime->setMono(true);
    m_knownTime->setPlaceholder(u"YYYY-MM-DD HH:MM:SS"_s);
    m_knownTime->setAccessibleName(Texts::tr("Was taken at"));
    m_choose->setToolTip(Texts::tr("Choose among the selected photos"));
    connect(m_choose, &QAbstractButton::clicked, this, &ShiftTimeSheet::chooseKnown);
    connect(m_knownTime, &QLineEdit::textEdited, this, [this](const QString& text) { m_shifting.setKnownTime(text); });
    column->addLayout(line);
    column->addLayout(captioned(form, Texts::tr("Was taken at"), m_knownTime));
    return form;
}

QWidget* ShiftTimeSheet::buildZone()
{
    auto* form = new QWidget;
    auto* column = formColumn(form, 8);
    auto* line = new QHBoxLayout;
    auto* gap = new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    line->addItem(gap);
    line->addWidget(m_keepsClock);
    line->addStretch();
    line->setSpacing(0);
    onRestyle(form, [this, gap, line] {
        gap->changeSize(px(labelWidth), 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_keepsClock->setFixedHeight(px(30));
        line->invalidate();
    });
    m_keepsClock->setToolTip(Texts::tr("Without it, the moment stays and the clock time moves"));
    connect(m_zone, &QAbstractButton::clicked, this, &ShiftTimeSheet::chooseZone);
    connect(
        m_keepsClock, &QAbstractButton::clicked, this, [this] { m_shifting.setKeepsClock(!m_shifting.keepsClock()); });
    column->addLayout(captioned(form, Texts::tr("Time zone"), m_zone));
    column->addLayout(line);
    column->addStretch();
    return form;
}

// What there is to say below the table; room for one line is always there.
QWidget* ShiftTimeSheet::buildNotes()
{
    auto* notes = new QWidget;
    auto* column = formColumn(notes, 4);
    auto* line = new QHBoxLayout;
    line->addWidget(m_note);
    line->addWidget(m_own);
    line->addStretch();
    m_own->setInline(true);
    connect(m_own, &QAbstractButton::clicked, this, [this] { m_shifting.setZone({ .isOwn = true }); });
    m_warningLine = new QWidget;
    auto* warning = new QHBoxLayout(m_warningLine);
    warning->setContentsMargins(0, 0, 0, 0);
    warning->addWidget(new WarningSign, 0, Qt::AlignTop);
    warning->addWidget(m_warning, 1);
    m_warning->setVerbatim(true);
    column->addLayout(line);
    column->addWidget(m_warningLine);
    column->addStretch();
    onRestyle(notes, [notes, line, warning] {
        notes->setMinimumHeight(px(noteHeight));
        line->setSpacing(px(4));
        warning->setSpacing(px(6));
    });
    return notes;
}

void ShiftTimeSheet::takeAmount()
{
    m_shifting.setAmount({ m_direction->currentIndex() == 1, m_amount.at(0)->text(), m_amount.at(1)->text(),
        m_amount.at(2)->text(), m_amount.at(3)->text() });
}

void ShiftTimeSheet::chooseKnown()
{
    auto* menu = new SearchMenu(Texts::tr("Photos"), Texts::tr("Search photos"), m_choose);
    QList<SearchMenuRow> rows;
    QHash<QString, QUrl> urls;
    for (const ShiftPhoto& photo : m_shifting.photos()) {
        const auto clock = ShiftPreview::clockOf(photo.values);
        if (!clock)
            continue;
        const SearchMenuRow row{ photo.url.fileName(), WallClock::shown(*clock) };
        urls.insert(row.title + u'\n' + row.code, photo.url);
        rows.append(row);
    }
    menu->setRows(rows);
    menu->setNothingFound(Texts::tr("No such photo"));
    connect(menu, &SearchMenu::picked, this, [this, urls](const SearchMenuRow& row) {
        m_shifting.setKnownPhoto(urls.value(row.title + u'\n' + row.code));
        m_knownTime->setFocus(Qt::OtherFocusReason);
    });
    const QRect field(m_knownTime->mapToGlobal(QPoint(0, 0)), m_knownTime->size());
    const QRect button(m_choose->mapToGlobal(QPoint(0, 0)), m_choose->size());
    menu->open(QRect(field.left(), button.top(), field.width(), button.height()), field.width());
}

void ShiftTimeSheet::chooseZone()
{
    auto* menu = new SearchMenu(Texts::tr("Time zones"), Texts::tr("Search towns or offsets"), m_zone);
    QList<SearchMenuRow> rows;
    QHash<QString, ShiftZone> zones;
    const auto choices = m_shifting.zoneChoices();
    for (const auto& [name, zone] : choices) {
        const SearchMenuRow row = zone.id.isEmpty() ? SearchMenuRow{ name, {} }
                                                    : SearchMenuRow{ name.section(u' ', 1), name.section(u' ', 0, 0) };
        zones.insert(row.title + u'\n' + row.code, zone);
        rows.append(row);
    }
    menu->setRows(rows);
    menu->setNothingFound(Texts::tr("No such time zone"));
    connect(menu, &SearchMenu::picked, this,
        [this, zones](const SearchMenuRow& row) { m_shifting.setZone(zones.value(row.title + u'\n' + row.code)); });
    menu->open(QRect(m_zone->mapToGlobal(QPoint(0, 0)), m_zone->size()), m_zone->width());
}

void ShiftTimeSheet::refresh()
{
    if (!m_shifting.isOpen())
        return;
    refreshForms();
    m_table->setRows(m_shifting.preview().rows);
    refreshNotes();
    const auto count = m_shifting.preview().targets.size();
    m_shift->setText(m_shifting.way() == TimeShifting::Way::zone
            //: %n is a number of photos.
            ? Texts::tr("Set Zone of %n", nullptr, count)
            : Texts::tr("Shift %n Photo(s)", nullptr, count));
    m_shift->updateGeometry();
    m_shift->setEnabled(m_shifting.canShift());
}

void ShiftTimeSheet::refreshForms()
{
    const int way = int(m_shifting.way());
    m_way->setCurrentIndex(way);
    m_forms->setCurrentIndex(way);
    const TimeShifting::Amount& amount = m_shifting.amount();
    m_direction->setCurrentIndex(amount.isEarlier ? 1 : 0);
    m_amount.at(0)->setBoundText(amount.days);
    m_amount.at(1)->setBoundText(amount.hours);
    m_amount.at(2)->setBoundText(amount.minutes);
    m_amount.at(3)->setBoundText(amount.seconds);
    const QString problem = m_shifting.problem();
    m_help->setRole(problem.isEmpty() ? TextRole::label : TextRole::amberText);
    m_help->setText(
        problem.isEmpty() ? Texts::tr("Date digitized and the other dates of a photo move along.") : problem);
    m_thumbnail->setUrl(m_pairing.seenFile(m_shifting.knownPhoto()));
    m_knownName->setText(m_shifting.knownPhoto().fileName());
    const QString clock = m_shifting.knownClock();
    m_knownClock->setText(clock.isEmpty() ? Texts::tr("No date") : clock);
    m_knownTime->setBoundText(m_shifting.knownTime());
    m_knownTime->setAccessibleDescription(problem);
    m_zone->setChoice(m_shifting.zoneName(m_shifting.zone()));
    m_keepsClock->setChecked(m_shifting.keepsClock());
}

void ShiftTimeSheet::refreshNotes()
{
    const ShiftPreview& preview = m_shifting.preview();
    const auto seconds = m_shifting.seconds();
    QString note;
    if (m_shifting.unread() > 0)
        note = Texts::tr("Reading %n more…", "photos", m_shifting.unread());
    else if (m_shifting.way() == TimeShifting::Way::zone)
        note = m_shifting.zone().isOwn ? QString() : preview.positionsText();
    else if (m_shifting.way() == TimeShifting::Way::knownPhoto && seconds && *seconds != 0)
        //: %1 is an amount of time, like “1 h 30 min earlier”.
        note = Texts::tr("All others by the same amount: %1.").arg(ShiftPreview::amountText(*seconds));
    const bool isWrong = m_shifting.way() == TimeShifting::Way::knownPhoto && !m_shifting.problem().isEmpty();
    m_note->setRole(isWrong ? TextRole::amberText : TextRole::label);
    m_note->setText(isWrong ? m_shifting.problem() : note);
    m_note->setVisible(!m_note->text().isEmpty());
    m_own->setVisible(m_shifting.way() == TimeShifting::Way::zone && !m_shifting.zone().isOwn && preview.positions > 0
        && m_shifting.unread() == 0);
    const QString warning = preview.warning();
    m_warning->setText(warning);
    m_warningLine->setVisible(!warning.isEmpty());
    updateGeometry();
}

QString ShiftTimeSheet::title() const
{
    return Texts::tr("Shift Time of %n Photo(s)", nullptr, m_photos);
}

void ShiftTimeSheet::confirm()
{
    if (m_shift->isEnabled())
        m_shifting.shift();
}

void ShiftTimeSheet::cancel()
{
    m_shifting.close();
}

QWidget* ShiftTimeSheet::initialFocus()
{
    switch (m_shifting.way()) {
    case TimeShifting::Way::amount:
        return m_amount.constFirst();
    case TimeShifting::Way::knownPhoto:
        return m_knownTime;
    case TimeShifting::Way::zone:
        break;
    }
    return m_zone;
}

}  // namespace Quorbel
