#include "ui/inspector/FormLanguages.h"

#include "app/model/AppModel.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/inspector/FieldRow.h"

#include <QLocale>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostAdded = 4;

// What was typed, as a language that is not in the list: "de-at".
std::optional<SearchMenuRow> otherLanguage(const QString& typed, const QStringList& present)
{
    const QString code = FieldLanguages::spelling(typed);
    if (!FieldLanguages::isCode(typed) || present.contains(code, Qt::CaseInsensitive))
        return std::nullopt;
    return SearchMenuRow{ FieldLanguages::name(code), code };
}

}  // namespace

FormLanguages::FormLanguages(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
}

QStringList FormLanguages::shownCodes(const QString& id) const
{
    return isOpen(id) ? m_model.languages(id) : QStringList();
}

void FormLanguages::connectRow(FieldRow& row, const FieldSpec& field, const QString& code)
{
    const QString id = field.id;
    connect(&row, &FieldRow::languageMenuAsked, this,
        [this, field, &row](QWidget* anchor) { openMenu(field, anchor, row.input()->width()); });
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

// The way back from what was taken away is the same button.
void FormLanguages::remove(const QString& id, const QString& code)
{
    const QString key = FieldLanguages::key(id, code);
    const bool isEdited = (m_model.isBatch() ? m_model.batchInclude() : m_model.editedSingle()).contains(key);
    const QMap<QString, QString>& texts = m_model.isBatch() ? m_model.batchValues() : m_model.draftValues();
    if (isEdited && texts.value(key).trimmed().isEmpty())
        return m_model.addLanguage(id, code);
    m_model.removeLanguage(id, code);
    const QStringList left = m_model.languages(id);
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

void FormLanguages::openMenu(const FieldSpec& field, QWidget* anchor, int width)
{
    const QStringList present = m_model.languages(field.id);
    QList<SearchMenuRow> rows;
    const auto offer = [&rows, &present](const QString& code) {
        const SearchMenuRow row{ FieldLanguages::name(code), code };
        if (FieldLanguages::isCode(code) && !present.contains(code) && !rows.contains(row))
            rows.append(row);
    };
    const QStringList first = likely(field.id);
    for (const QString& code : first)
        offer(code);
    QSet<QString> offered(present.cbegin(), present.cend());
    for (const SearchMenuRow& row : std::as_const(rows))
        offered.insert(row.code);
    for (const FieldLanguages::Choice& choice : FieldLanguages::choices())
        if (!offered.contains(choice.code))
            rows.append({ choice.name, choice.code });
    auto* menu = new SearchMenu(u"Add a language to %1"_s.arg(field.label), u"Language or code"_s, anchor);
    menu->setOther([present](const QString& typed) { return otherLanguage(typed, present); });
    menu->setNothingFound(u"No such language. A code such as “de-AT” works too."_s);
    menu->setRows(rows);
    connect(menu, &SearchMenu::picked, this, [this, id = field.id](const SearchMenuRow& row) { add(id, row.code); });
    menu->open(QRect(anchor->mapToGlobal(QPoint()), anchor->size()), width);
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
