#include "ui/inspector/iptc/IptcSections.h"

#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/WantedFields.h"
#include "ui/inspector/iptc/FoldingSection.h"
#include "ui/inspector/iptc/IptcSummary.h"
#include "ui/inspector/iptc/SettledFocus.h"

#include <QVBoxLayout>

#include <iterator>

namespace Quorbel {

namespace {

constexpr qreal above = 8;  // points

// Those behind the sections that every photo has.
QList<FieldSection> sections()
{
    QList<FieldSection> all;
    for (const auto& [section, title] : RawValues<FieldSection>::table())
        if (section > FieldSection::additional)
            all.append(section);
    return all;
}

}  // namespace

IptcSections::IptcSections(AppModel& model, Rows rows, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_rows(std::move(rows))
    , m_holders(model)
    , m_column(new QVBoxLayout(this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    m_column->setSpacing(0);
    onRestyle(this, [this] { m_column->setContentsMargins(0, px(above), 0, 0); });
    hide();
}

void IptcSections::refresh(bool fresh)
{
    static const QList<FieldSection> all = sections();
    bool isAnything = false;
    for (const FieldSection section : all) {
        const QStringList ids = m_model.fieldSets().visible(section);
        FoldingSection* shown = ids.isEmpty() ? m_sections.value(section) : make(section);
        if (!shown)
            continue;
        const bool isOpen = m_open.contains(section);
        shown->setRows(isOpen ? m_rows(ids, fresh) : QList<FieldRow*>());
        shown->heading().setOpen(isOpen);
        const QString gaps = WantedFields::line(m_model.fieldSets(), section);
        const QString unread = InspectorStates::unreadText(m_model);
        shown->heading().setSummary(unread.isEmpty() ? IptcSummary::of(
                                        m_model, ids, [this](const QString& id) { return heldText(id); }, gaps)
                                                     : Summary{ unread, {} });
        shown->heading().setCount(gaps.isEmpty() ? IptcSummary::countText(m_model, ids) : gaps);
        shown->heading().setEdited(IptcSummary::isEdited(m_model, ids));
        shown->setVisible(!ids.isEmpty());
        isAnything = isAnything || !ids.isEmpty();
    }
    setVisible(isAnything);
}

QString IptcSections::heldText(const QString& id) const
{
    return InspectorStates::heldText(m_model, m_holders, id);
}

void IptcSections::reveal(const QString& id)
{
    const auto language = FieldLanguages::languageIn(id);
    const FieldSpec* field = language ? language->field : IptcSchema::spec(id);
    if (field && field->section > FieldSection::additional)
        setOpen(field->section, true);
}

QList<QWidget*> IptcSections::tabStops() const
{
    QList<QWidget*> stops;
    for (const FoldingSection* section : m_sections) {
        stops.append(&section->heading());
        for (const FieldRow* row : section->rows())
            stops.append(row->tabStops());
    }
    return stops;
}

FoldingSection* IptcSections::make(FieldSection section)
{
    if (FoldingSection* known = m_sections.value(section))
        return known;
    auto* made = new FoldingSection(Texts::shown(rawValue(section)), this);
    made->hide();
    m_sections.insert(section, made);
    m_column->insertWidget(int(std::distance(m_sections.begin(), m_sections.find(section))), made);
    connect(&made->heading(), &FoldLine::openAsked, this, [this, section, made](bool open) {
        setOpen(section, open);
        if (open)
            showWhereItStands(*made);
    });
    return made;
}

void IptcSections::setOpen(FieldSection section, bool open)
{
    if (m_open.contains(section) == open)
        return;
    if (open)
        m_open.insert(section);
    else
        m_open.remove(section);
    emit changed();
}

}  // namespace Quorbel
