#include "app/model/iptc/RememberedCards.h"

#include "app/model/AppModel.h"
#include "core/iptc/StructureText.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldSchema.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <ranges>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The fields that are remembered, and the member that says where somebody is.
const QMap<QString, QString>& cities()
{
    static const QMap<QString, QString> members{ { u"iptc.contact"_s, u"CiAdrCity"_s },
        { u"iptc.licensors"_s, u"LicensorCity"_s } };
    return members;
}

const StructureSpec& structureOf(const QString& id)
{
    return *IptcStructures::spec(FieldSchema::spec(id)->structure);
}

}  // namespace

RememberedCards::RememberedCards(AppModel& model)
    : m_stored(model.preferences(), "rememberedCards", {})
{
    const QJsonObject all = QJsonDocument::fromJson(m_stored().toUtf8()).object();
    for (const QString& id : cities().keys())
        for (const auto& entry : all[id].toArray()) {
            const RememberedCard card{ StructureText::of(entry[u"card"_s].toObject()), entry[u"name"_s].toString() };
            if (!card.card.isEmpty() && m_cards[id].size() < most)
                m_cards[id].append(card);
        }
}

RememberedCards::~RememberedCards() = default;

bool RememberedCards::isAbout(const QString& id)
{
    return cities().contains(id);
}

const QList<RememberedCard>& RememberedCards::of(const QString& id) const
{
    static const QList<RememberedCard> none;
    const auto cards = m_cards.constFind(id);
    return cards == m_cards.cend() ? none : *cards;
}

QString RememberedCards::label(const QString& id, const RememberedCard& card)
{
    const StructureSpec& structure = structureOf(id);
    QStringList parts{ card.name.isEmpty() ? StructureText::title(structure, card.card) : card.name,
        StructureText::memberText(structure, card.card, cities().value(id)) };
    // Without a place, what else tells two contacts of one creator apart.
    if (parts.last().isEmpty())
        parts.last() = StructureText::title(structure, card.card);
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(u" · "_s);
}

void RememberedCards::forget(const QString& id, const QString& card)
{
    if (m_cards[id].removeIf([&card](const RememberedCard& other) { return other.card == card; }) > 0)
        keep();
}

void RememberedCards::forgetAll(const QString& id)
{
    if (m_cards.remove(id) > 0)
        keep();
}

void RememberedCards::noteSaving(const Edits& edits)
{
    m_saving.clear();
    const QSet<QString> keys = edits.keys();
    for (const QString& id : cities().keys()) {
        if (!keys.contains(id))
            continue;
        for (const QUrl& photo : edits.subjects) {
            const Edits own = edits.of(photo);
            QStringList cards = own.lists.value(id) + own.added.value(id);
            cards.append(own.scalars.value(id));
            cards.removeAll(QString());
            if (!cards.isEmpty())
                m_saving[id].insert(photo, cards);
        }
    }
}

// The first item of a list is the one that counts most.
void RememberedCards::noteSaved(
    const QList<ImageRecord>& photos, const QSet<QUrl>& failed, const QSet<QString>& refused)
{
    const auto saving = std::exchange(m_saving, {});
    const auto before = m_cards;
    for (auto field = saving.cbegin(); field != saving.cend(); ++field) {
        if (refused.contains(field.key()))
            continue;
        QStringList seen;
        for (const ImageRecord& photo : photos) {
            const QStringList cards = failed.contains(photo.url) ? QStringList() : field->value(photo.url);
            if (cards.isEmpty() || cards == seen)
                continue;
            seen = cards;
            const bool isNamed = field.key() == "iptc.contact";
            for (const QString& card : std::views::reverse(cards))
                use(field.key(), { card, isNamed ? photo.values.value(FieldID::creator) : QString() });
        }
    }
    if (m_cards != before)
        keep();
}

void RememberedCards::use(const QString& id, const RememberedCard& card)
{
    QList<RememberedCard>& cards = m_cards[id];
    const StructureSpec& structure = structureOf(id);
    cards.removeIf(
        [&](const RememberedCard& other) { return StructureText::isSame(structure, other.card, card.card); });
    cards.prepend(card);
    if (cards.size() > most)
        cards.removeLast();
}

void RememberedCards::keep()
{
    QJsonObject all;
    for (auto field = m_cards.cbegin(); field != m_cards.cend(); ++field) {
        QJsonArray cards;
        for (const RememberedCard& card : *field)
            cards.append(QJsonObject{ { u"card"_s, StructureText::members(card.card) }, { u"name"_s, card.name } });
        all.insert(field.key(), cards);
    }
    m_stored.set(m_cards.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact)));
    emit changed();
}

}  // namespace Quorbel
