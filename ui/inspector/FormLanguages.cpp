#include "ui/inspector/FormLanguages.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/LanguageMenu.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostAdded = 4;

}  // namespace

FormLanguages::FormLanguages(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
}

QStringList FormLanguages::shownCodes(const QString& id) const
{
    return isOpen(id) ? InspectorStates::languageCodes(m_model, id) : QStringList();
}

void FormLanguages::connectRow(FieldRow& row, const FieldSpec& field, const QString& code)
{
    const QString id = field.id;
    connect(&row, &FieldRow::languageMenuAsked, this,
        [this, field, &row](QWidget* anchor) { openMenu(field, anchor, row); });
    connect(&row, &FieldRow::languagesAsked, this, [this, id](bool open) { setOpen(id, open); });
    if (!code.isEmpty())
        connect(&row, &FieldRow::removeClicked, this, [this, id, code] { remove(id, code); });
}

void FormLanguages::setOpen(const QString& id, bool open)
{
    const bool was = isOpen(id);
    if (open)
        m_open.insert(id);
    else
        m_open.remove(id);
    if (was != open)
        emit changed();
    const QStringList codes = shownCodes(id);
    emit focusAsked(codes.isEmpty() ? id : FieldLanguages::key(id, codes.constFirst()));
}

// The way back from what will be taken away is the same button.
void FormLanguages::remove(const QString& id, const QString& code)
{
    const bool isWayBack = InspectorStates::isTakenAway(m_model, FieldLanguages::key(id, code));
    m_model.removeLanguage(id, code);
    if (isWayBack)
        m_model.addLanguage(id, code);
    const QStringList left = shownCodes(id);
    if (left.contains(code))
        return;
    // Its row is gone, and the keyboard with it.
    const auto next = std::find_if(left.cbegin(), left.cend(), [&code](const QString& other) { return other > code; });
    emit focusAsked(next == left.cend() ? id : FieldLanguages::key(id, *next));
}

// Those that one is likely to want: added lately, and of the other fields.
QStringList FormLanguages::likely(const QString& id) const
{
    QStringList codes = m_added;
    for (const FieldSpec& field : FieldSchema::all())
        if (field.id != id && !field.languageTag().isEmpty())
            codes.append(m_model.languages(field.id));
    return codes;
}

void FormLanguages::openMenu(const FieldSpec& field, QWidget* anchor, const FieldRow& row)
{
    SearchMenu* menu =
        makeLanguageMenu(Texts::shown(field.label), m_model.languages(field.id), likely(field.id), anchor);
    connect(
        menu, &SearchMenu::picked, this, [this, id = field.id](const SearchMenuRow& picked) { add(id, picked.code); });
    // In line with the field, which the button that adds one hangs out of.
    const QPoint from(row.input()->mapToGlobal(QPoint()).x(), anchor->mapToGlobal(QPoint()).y());
    menu->open(QRect(from, anchor->size()), row.input()->width());
}

void FormLanguages::add(const QString& id, const QString& code)
{
    m_added.removeAll(code);
    m_added.prepend(code);
    m_added = m_added.first(qMin(mostAdded, m_added.size()));
    m_open.insert(id);
    m_model.addLanguage(id, code);
    emit changed();
    emit focusAsked(FieldLanguages::key(id, code));
}

}  // namespace Quorbel
