#include "ui/sheets/sidecars/MoveOverSheet.h"

#include "app/model/sidecars/MovingOver.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sheets/sidecars/MoveTable.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal moveWidth = 560;
constexpr qreal noteHeight = 16;
constexpr int mostNotes = 9;

// Nothing in a sidecar is replaced, so there is one thing to count.
QStringList columnsOf(MoveWay way)
{
    return way == MoveWay::intoPhotos ? QStringList{ u"Gain"_s, u"Change"_s, u"Lose"_s } : QStringList(u"Gain"_s);
}

QString counted(qsizetype count)
{
    return QLocale(QLocale::English).toString(count);
}

}  // namespace

MoveOverSheet::MoveOverSheet(MovingOver& moving, QWidget* parent)
    : SheetBody(parent)
    , m_moving(moving)
    , m_isInto(moving.way() == MoveWay::intoPhotos)
    , m_table(new MoveTable(columnsOf(moving.way())))
    , m_dismiss(new QBButton(u"Cancel"_s, QBButtonKind::secondary))
    , m_write(new QBButton({}, QBButtonKind::primary))
{
    auto* help = new WrappedLine(TextRole::label, 12, 17);
    help->setText(m_isInto ? u"What the sidecars hold is written into the photos themselves, also where it differs. "
                             "The sidecars stay as they are."_s
                           : u"What raw photos hold and their sidecars do not is written into the sidecars. "
                             "The photos stay untouched."_s);
    connect(m_dismiss, &QAbstractButton::clicked, this, &MoveOverSheet::cancel);
    connect(m_write, &QAbstractButton::clicked, this, &MoveOverSheet::confirm);
    auto* column = new QVBoxLayout(this);
    stackParts(this, column, { { help, 16 }, { buildHeadings(), 6 }, { m_table, 10 }, { buildNotes(), 20 } });
    column->addLayout(sheetButtonRow(this, { m_dismiss, m_write }));
    frameSheet(this, column, moveWidth);
    connect(&m_moving, &MovingOver::changed, this, &MoveOverSheet::refresh);
    refresh();
}

QWidget* MoveOverSheet::buildHeadings()
{
    auto* headings = new QWidget;
    auto* line = new QHBoxLayout(headings);
    line->setSpacing(0);
    line->addWidget(new ThemedLabel(u"Field"_s, TextRole::muted, 11));
    line->addStretch();
    QList<ThemedLabel*> columns;
    for (const QString& name : columnsOf(m_moving.way())) {
        auto* label = new ThemedLabel(name, TextRole::muted, 11);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        line->addWidget(label);
        columns.append(label);
    }
    onRestyle(headings, [line, columns] {
        line->setContentsMargins(px(MoveTable::side), 0, px(MoveTable::side) + 1, 0);
        for (ThemedLabel* label : columns)
            label->setFixedWidth(px(MoveTable::columnWidth));
    });
    return headings;
}

QWidget* MoveOverSheet::buildNotes()
{
    auto* notes = new QWidget;
    auto* column = new QVBoxLayout(notes);
    column->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < mostNotes; ++i) {
        auto* line = new WrappedLine(TextRole::label, 11, noteHeight);
        line->setVerbatim(true);
        column->addWidget(line);
        m_notes.append(line);
    }
    onRestyle(notes, [column] { column->setSpacing(px(3)); });
    return notes;
}

// What stands in the table as long as it is empty.
QString MoveOverSheet::state() const
{
    if (!m_moving.problem().isEmpty())
        return m_moving.problem();
    return m_moving.looked() < m_moving.photos() ? u"Looking into the files…"_s : u"There is nothing to write."_s;
}

void MoveOverSheet::refresh()
{
    if (!m_moving.isOpen())
        return;
    const MovePreview& preview = m_moving.preview();
    m_table->setRows(preview.rows(), state());
    QStringList notes = preview.notes();
    if (!m_moving.problem().isEmpty() && !preview.fields.isEmpty())
        notes.prepend(m_moving.problem());
    else if (m_moving.looked() < m_moving.photos())
        notes.prepend(u"Looked into %1 of %2 photos…"_s.arg(counted(m_moving.looked()), counted(m_moving.photos())));
    for (qsizetype i = 0; i < m_notes.size(); ++i) {
        m_notes.at(i)->setText(notes.value(i));
        m_notes.at(i)->setVisible(i < notes.size());
    }
    const qsizetype count = preview.plans.size();
    const QString photos = count == 1 ? u"1 Photo"_s : counted(count) + u" Photos"_s;
    m_write->setText(m_isInto ? u"Write Into "_s + photos : u"Write for "_s + photos);
    m_write->updateGeometry();
    m_write->setEnabled(m_moving.canMove());
    updateGeometry();
}

QString MoveOverSheet::title() const
{
    return m_isInto ? u"Write Sidecars Into Photos"_s : u"Write Metadata Into Sidecars"_s;
}

void MoveOverSheet::confirm()
{
    if (m_write->isEnabled())
        m_moving.move();
}

void MoveOverSheet::cancel()
{
    m_moving.close();
}

// The button that writes waits for the look; Tab comes to it from here.
QWidget* MoveOverSheet::initialFocus()
{
    return m_table;
}

}  // namespace Quorbel
