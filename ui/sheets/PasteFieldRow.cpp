#include "ui/sheets/PasteFieldRow.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "ui/controls/Labels.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal above = 7;
constexpr qreal below = 6;
constexpr qreal valueHeight = 18;
constexpr qreal noteHeight = 15;

// So that the usual labels are whole in every language.
int labelWidth()
{
    const QFontMetricsF letters(sansFont(13));
    qreal widest = pxF(92);
    for (const FieldSpec& field : FieldSchema::all())
        if (field.alwaysShown)
            widest = qMax(widest, letters.horizontalAdvance(Texts::shown(field.label)));
    return int(std::ceil(widest));
}

}  // namespace

// A rating as stars, as high as a line of text.
class StarsLine final : public QWidget {
public:
    StarsLine()
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        onRestyle(this, [this] { setFixedHeight(px(valueHeight)); });
    }

    void setRating(int rating, TextRole role)
    {
        m_rating = rating;
        m_role = role;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        for (int star = 0; star < 5; ++star)
            Icon::paint(painter, mirrored(QRectF(star * pxF(16), 0, pxF(14), height()), this),
                star < m_rating ? u"star.fill"_s : u"star"_s, pxF(14),
                star < m_rating ? colorFor(theme, m_role) : theme.muted);
    }

private:
    int m_rating = 0;
    TextRole m_role = TextRole::text;
};

PasteFieldRow::PasteFieldRow(bool isFirst, QWidget* parent)
    : QWidget(parent)
    , m_isFirst(isFirst)
    , m_tick(new QBCheckbox)
    , m_label(new ThemedLabel({}, TextRole::label))
    , m_value(new ThemedLabel)
    , m_stars(new StarsLine)
    , m_note(new ThemedLabel({}, TextRole::label, 11))
{
    for (ThemedLabel* text : { m_label, m_value, m_note })
        text->setElided(true);
    m_value->setVerbatim(true);
    m_note->setVerbatim(true);
    build();
    m_tick->installEventFilter(this);
    connect(m_tick, &QAbstractButton::clicked, this, &PasteFieldRow::toggled);
}

// Each part is whole pixels high.
int PasteFieldRow::fixedHeight()
{
    return px(above) + px(valueHeight) + px(noteHeight) + px(below);
}

void PasteFieldRow::build()
{
    auto* line = new QHBoxLayout(this);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    for (QWidget* part : QList<QWidget*>{ m_value, m_stars, m_note })
        texts->addWidget(part);
    line->addWidget(m_tick, 0, Qt::AlignTop);
    line->addWidget(m_label, 0, Qt::AlignTop);
    line->addLayout(texts, 1);
    onRestyle(this, [this, line] {
        setFixedHeight(fixedHeight());
        line->setContentsMargins(px(12), px(above), px(12), px(below));
        line->setSpacing(px(12));
        m_tick->setContentsMargins(0, px(1), 0, 0);
        m_label->setFixedSize(labelWidth(), px(valueHeight));
        m_value->setFixedHeight(px(valueHeight));
        m_note->setFixedHeight(px(noteHeight));
    });
}

void PasteFieldRow::setRow(const FieldPasting::Row& row)
{
    const FieldSpec* field = FieldSchema::spec(row.key);
    const bool isRating = field && field->kind == FieldKind::rating;
    m_tick->setChecked(row.isTicked);
    const QString label = field ? Texts::shown(field->label) : row.label;
    m_tick->setAccessibleName(label);
    m_tick->setAccessibleDescription(row.note.isEmpty() ? row.value : row.value + u". "_s + row.note);
    m_label->setText(label);
    m_value->setText(row.value);
    m_note->setText(row.note);
    m_value->setVisible(!isRating);
    m_stars->setVisible(isRating);
    m_stars->setRating(row.value.toInt(), row.isTicked ? TextRole::text : TextRole::muted);
    m_label->setRole(row.isTicked ? TextRole::label : TextRole::muted);
    m_value->setRole(row.isTicked ? TextRole::text : TextRole::muted);
    const TextRole told = row.losesText ? TextRole::amberText : TextRole::label;
    m_note->setRole(row.isTicked ? told : TextRole::muted);
}

bool PasteFieldRow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_tick || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        emit moved(-1);
        return true;
    case Qt::Key_Down:
        emit moved(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit confirmed();
        return true;
    default:
        return false;
    }
}

// Else the sheet would take it, and the release.
void PasteFieldRow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void PasteFieldRow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !rect().contains(event->pos()))
        return;
    m_tick->setFocus(Qt::MouseFocusReason);
    emit toggled();
}

void PasteFieldRow::paintEvent(QPaintEvent*)
{
    if (!m_isFirst)
        QPainter(this).fillRect(0, 0, width(), 1, Theme::of(this).line);
}

}  // namespace Quorbel
