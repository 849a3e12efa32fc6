#include "ui/inspector/BesideSet.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/iptc/FoldingSection.h"
#include "ui/inspector/iptc/IptcSummary.h"
#include "ui/inspector/iptc/SettledFocus.h"

#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal above = 8;  // points
}  // namespace

BesideSet::BesideSet(const AppModel& model, Rows rows, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_rows(std::move(rows))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    auto* column = new QVBoxLayout(this);
    onRestyle(this, [column] { column->setContentsMargins(0, px(above), 0, 0); });
    hide();
}

FoldingSection& BesideSet::section()
{
    if (m_section)
        return *m_section;
    m_section = new FoldingSection({}, this);
    layout()->addWidget(m_section);
    connect(&m_section->heading(), &FoldLine::openAsked, this, [this](bool open) {
        setOpen(open);
        if (open)
            showWhereItStands(*m_section);
    });
    if (m_below)
        m_section->setBelow(m_above, m_below);
    return *m_section;
}

void BesideSet::setBelow(FieldRow* row, QWidget* widget)
{
    m_above = row;
    m_below = widget;
    if (m_section)
        m_section->setBelow(row, widget);
}

bool BesideSet::refresh(const QStringList& ids, bool fresh)
{
    const QStringList idsBefore = std::exchange(m_ids, ids);
    const QList<FieldRow*> rowsBefore = rows();
    setVisible(!ids.isEmpty());
    if (ids.isEmpty() && !m_section)
        return false;
    FoldingHeading& heading = section().heading();
    QStringList labels;
    for (const QString& id : ids)
        labels.append(Texts::shown(FieldSchema::spec(id)->label));
    m_section->setRows(m_isOpen ? m_rows(ids, fresh) : QList<FieldRow*>());
    //: Heads fields that a chosen set of fields leaves out, in capitals.
    heading.setTitle(m_model.isBatch() ? Texts::tr("ALSO IN THESE PHOTOS") : Texts::tr("ALSO IN THIS PHOTO"));
    heading.setOpen(m_isOpen);
    heading.setSummary({ labels.join(u", "_s), {} });
    heading.setCount(Texts::tr("%n field(s)", nullptr, labels.size()));
    heading.setEdited(IptcSummary::isEdited(m_model, ids));
    return ids != idsBefore || rows() != rowsBefore;
}

QWidget* BesideSet::heading() const
{
    return m_section ? &m_section->heading() : nullptr;
}

QList<FieldRow*> BesideSet::rows() const
{
    return m_section ? m_section->rows() : QList<FieldRow*>();
}

void BesideSet::setOpen(bool open)
{
    if (std::exchange(m_isOpen, open) != open)
        emit changed();
}

}  // namespace Quorbel
