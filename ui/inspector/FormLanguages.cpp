#include "ui/inspector/FormLanguages.h"

#include "app/model/AppModel.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorStates.h"

#include <QLocale>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostAdded = 4;

// What was typed, as a language that is not in the list: "de-at". Not a second code of one that is: "deu".
std::optional<SearchMenuRow> otherLanguage(const QString& typed, const QStringList& present)
{
    if (!FieldLanguages::isCode(typed))
        return std::nullopt;
    const QString code = FieldLanguages::spelling(typed);
    const SearchMenuRow row{ FieldLanguages::name(code), code };
    const QList<FieldLanguages::Choice>& listed = FieldLanguages::choices();
    const bool isListed = std::any_of(listed.cbegin(), listed.cend(),
        [&row](const FieldLanguages::Choice& choice) { return choice.name == row.title; });
    return isListed || present.contains(code, Qt::CaseInsensitive) ? std::nullopt : std::optional(row);
}

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

// Those that one is likely to want: of the other fields, added lately, and the user's own.
QStringList FormLanguages::likely(const QString& id) const
{
    QStringList codes = m_added;
    for (const FieldSpec& field : FieldSchema::all())
        if (field.id != id && !field.languageTag().isEmpty())
            codes.append(m_model.languages(field.id));
    const QStringList own = QLocale::system().uiLanguages();
    for (const QString& locale : own)
        codes.append(locale.section(u'-', 0, 0));
    codes.removeDuplicates();
    return codes;
}

void FormLanguages::openMenu(const FieldSpec& field, QWidget* anchor, const FieldRow& row)
{
    const QStringList present = m_model.languages(field.id);
    QList<SearchMenuRow> rows;
    const auto offer = [&rows, &present](const QString& code) {
        const SearchMenuRow offered{ FieldLanguages::name(code), code };
        if (FieldLanguages::isCode(code) && !present.contains(code) && !rows.contains(offered))
            rows.append(offered);
    };
    const QStringList first = likely(field.id);
    for (const QString& code : first)
        offer(code);
    QSet<QString> offered(present.cbegin(), present.cend());
    for (const SearchMenuRow& one : std::as_const(rows))
        offered.insert(one.code);
    for (const FieldLanguages::Choice& choice : FieldLanguages::choices())
        if (!offered.contains(choice.code))
            rows.append({ choice.name, choice.code });
    auto* menu = new SearchMenu(u"Add a language to %1"_s.arg(field.label), u"Language or code"_s, anchor);
    menu->setOther([present](const QString& typed) { return otherLanguage(typed, present); });
    menu->setNothingFound(u"No such language. A code such as “de-AT” works too."_s);
    menu->setRows(rows);
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
