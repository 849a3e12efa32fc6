#include "ui/sheets/sidecars/MoveOverSheet.h"

#include "app/model/sidecars/MovingOver.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
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
    //: Headings of columns: how many photos gain a field, change it, and lose it.
    const QString gain = Texts::tr("Gain", "photos gain a field");
    if (way != MoveWay::intoPhotos)
        return { gain };
    return { gain, Texts::tr("Change", "photos change a field"), Texts::tr("Lose", "photos lose a field") };
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
    , m_dismiss(new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary))
    , m_write(new QBButton({}, QBButtonKind::primary))
{
    auto* help = new WrappedLine(TextRole::label, 12, 17);
    help->setText(m_isInto
            ? Texts::tr("What the sidecars hold is written into the photos themselves, also where it differs. "
                        "The sidecars stay as they are.")
            : Texts::tr("What raw photos hold and their sidecars do not is written into the sidecars. "
                        "The photos stay untouched."));
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
    line->addWidget(new ThemedLabel(Texts::tr("Field", "noun"), TextRole::muted, 11));
    line->addStretch();
    QList<ThemedLabel*> columns;
    for (const QString& name : columnsOf(m_moving.way())) {
        auto* label = new ThemedLabel(name, TextRole::muted, 11);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        line->addWidget(label);
        columns.append(label);
    }
    onRestyle(headings, [line, columns] {
        line->setContentsMargins(mirrored(QMargins(px(MoveTable::side), 0, px(MoveTable::side) + 1, 0)));
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
    return m_moving.looked() < m_moving.photos() ? Texts::tr("Looking into the files…")
                                                 : Texts::tr("There is nothing to write.");
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
        notes.prepend(Texts::tr("Looked into %1 of %2 photos…", nullptr, m_moving.photos())
                          //: %1 of all %2 photos were looked into.
                          .arg(counted(m_moving.looked()), counted(m_moving.photos())));
    for (qsizetype i = 0; i < m_notes.size(); ++i) {
        m_notes.at(i)->setText(notes.value(i));
        m_notes.at(i)->setVisible(i < notes.size());
    }
    const qsizetype count = preview.plans.size();
    //: A button; %1 is the number of photos.
    const QString title = m_isInto ? Texts::tr("Write Into %1 Photo(s)", nullptr, count)
                                   //: A button; %1 is the number of photos whose sidecars are written.
                                   : Texts::tr("Write for %1 Photo(s)", nullptr, count);
    m_write->setText(title.arg(counted(count)));
    m_write->updateGeometry();
    m_write->setEnabled(m_moving.canMove());
    updateGeometry();
}

QString MoveOverSheet::title() const
{
    return m_isInto ? Texts::tr("Write Sidecars Into Photos") : Texts::tr("Write Metadata Into Sidecars");
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
