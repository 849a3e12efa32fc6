#include "ui/inspector/iptc/CardActions.h"

#include "app/model/AppModel.h"
#include "app/model/iptc/RememberedCards.h"
#include "core/iptc/LocationCards.h"
#include "core/iptc/TermCards.h"
#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/text/Coordinates.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/pickers/CodePopover.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/iptc/PlacePopover.h"
#include "ui/inspector/iptc/RememberedPopover.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/VocabularySource.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal popoverWidth = 300;  // points, the least

bool isPlace(const FieldSpec& field)
{
    return field.structure == "Location";
}

void openAt(Popover& popover, const QWidget& card)
{
    // From edge to edge of what is seen of the card.
    const int room = px(EditedDot::room);
    const QRect head(card.mapToGlobal(QPoint(room, 0)), QSize(card.width() - room, px(28)));
    popover.open(head, qMax(head.width(), px(popoverWidth)));
}

}  // namespace

CardActions::CardActions(AppModel& model, PlaceProvider* places, const FieldSpec& field, StructureCards& cards)
    : QObject(&cards)
    , m_model(model)
    , m_places(places)
    , m_field(field)
    , m_cards(cards)
{
    if (isPlace(field))
        offerPlaces();
    offerTerms();
    if (!RememberedCards::isAbout(field.id))
        return;
    // Later: an action of the menu that is made anew may be what changed them.
    connect(
        &model.rememberedCards(), &RememberedCards::changed, this, &CardActions::offerRemembered, Qt::QueuedConnection);
    offerRemembered();
}

// --- Places ---

void CardActions::offerPlaces()
{
    //: Location: the fields of the form that say where the photo was taken.
    m_cards.setActions({ { Texts::tr("Copy from Location"), [this](int item) { copyFromLocation(item); },
                             [this](int item) { return whyNotFrom(item); } },
        { Texts::tr("Copy to Location"), [this](int item) { copyToLocation(item); },
            [this](int item) { return whyNotTo(item); } },
        { Texts::tr("Search Place…"), [this](int item) { searchPlace(item); } } });
}

QString CardActions::ofLocation(int item) const
{
    const QString place = LocationCards::fromFields([this](const QString& id) { return fieldText(id); });
    return place.isEmpty() ? QString() : LocationCards::moved(items().value(item), place);
}

QString CardActions::whyNotFrom(int item) const
{
    const QString card = ofLocation(item);
    if (card.isEmpty())
        //: Why nothing can be copied: those fields are empty.
        return Texts::tr("nothing there");
    //: Why nothing can be copied.
    return card == items().value(item) ? Texts::tr("the same already") : QString();
}

QString CardActions::whyNotTo(int item) const
{
    if (LocationCards::toFields(items().value(item), [](const QString&) { return QString(); }).isEmpty())
        //: Why nothing can be copied: this card is empty.
        return Texts::tr("nothing here");
    return toLocation(item).isEmpty() ? Texts::tr("the same already") : QString();
}

void CardActions::copyFromLocation(int item)
{
    if (const QString card = ofLocation(item); !card.isEmpty())
        setItem(item, card);
}

QList<LocationFill::Assignment> CardActions::toLocation(int item) const
{
    return LocationCards::toFields(items().value(item), [this](const QString& id) { return fieldText(id); });
}

void CardActions::copyToLocation(int item)
{
    const QList<LocationFill::Assignment> edits = toLocation(item);
    for (const LocationFill::Assignment& edit : edits)
        setField(edit.id, edit.value);
}

void CardActions::searchPlace(int item)
{
    QWidget* card = anchor(item);
    if (!card)
        return;
    auto* popover = new PlacePopover(m_places, card);
    if (const auto point = Coordinates::parse(fieldText(FieldID::coords)))
        popover->setBias(GeoPoint{ point->latitude, point->longitude });
    connect(popover, &PlacePopover::picked, this, [this, item](const LocationFill::Result& place) {
        setItem(item, LocationCards::moved(items().value(item), LocationCards::fromPlace(place)));
    });
    openAt(*popover, *card);
}

// --- Vocabularies ---

void CardActions::offerTerms()
{
    QList<StructureAction> actions;
    for (const TermOffer& offer : TermCards::offers(m_field.id))
        actions.append({ offer.action, [this, offer](int item) { chooseTerm(offer, item); } });
    if (!actions.isEmpty())
        m_cards.setActions(actions);
}

void CardActions::chooseTerm(const TermOffer& offer, int item)
{
    QWidget* card = anchor(item);
    if (!card)
        return;
    CodeSource source = vocabularySource(offer.vocabulary);
    source.footer.clear();
    auto* popover = new CodePopover(Texts::shown(Vocabularies::find(offer.vocabulary)->title), source, {}, false, card);
    connect(popover, &CodePopover::picked, this, [this, offer, item](const QString& code) {
        setItem(item, TermCards::withTerm(offer, items().value(item), code));
    });
    openAt(*popover, *card);
}

// --- What was saved before ---

void CardActions::offerRemembered()
{
    if (m_model.rememberedCards().of(m_field.id).isEmpty())
        m_cards.setActions({});
    else
        m_cards.setActions(
            { { .text = either(Texts::tr("Use Remembered Contact…"), Texts::tr("Use Remembered Licensor…")),
                  .run = [this](int item) { pickRemembered(item); },
                  .start = either(Texts::tr("Use a remembered contact…"), Texts::tr("Use a remembered licensor…")) },
                { either(Texts::tr("Forget Remembered Contacts"), Texts::tr("Forget Remembered Licensors")),
                    [this](int) { m_model.rememberedCards().forgetAll(m_field.id); } } });
}

QString CardActions::either(const QString& contact, const QString& licensor) const
{
    return m_field.isSeveral ? licensor : contact;
}

void CardActions::pickRemembered(int item)
{
    QWidget* card = anchor(item);
    if (!card)
        return;
    auto* popover =
        new RememberedPopover(either(Texts::tr("Remembered contacts"), Texts::tr("Remembered licensors")), card);
    RememberedCards& cards = m_model.rememberedCards();
    showRemembered(*popover);
    connect(&cards, &RememberedCards::changed, popover, [this, popover] { showRemembered(*popover); });
    connect(popover, &RememberedPopover::picked, this,
        [this, item, &cards](int row) { setItem(item, cards.of(m_field.id).value(row).card); });
    connect(popover, &RememberedPopover::forgotten, this,
        [this, &cards](int row) { cards.forget(m_field.id, cards.of(m_field.id).value(row).card); });
    openAt(*popover, *card);
}

void CardActions::showRemembered(RememberedPopover& popover) const
{
    QStringList labels;
    for (const RememberedCard& card : m_model.rememberedCards().of(m_field.id))
        labels.append(RememberedCards::label(m_field.id, card));
    popover.setRows(labels);
}

// --- The model's fields ---

QString CardActions::fieldText(const QString& id) const
{
    if (!m_model.isBatch())
        return m_model.draftValues().value(id);
    const auto typed = m_model.batchValues().constFind(id);
    return typed != m_model.batchValues().cend() && m_model.batchInclude().contains(id)
        ? *typed
        : m_model.sharedValue(id).value_or(QString());
}

void CardActions::setField(const QString& id, const QString& text)
{
    if (m_model.isBatch())
        m_model.setBatch(id, text);
    else
        m_model.setSingle(id, text);
}

void CardActions::setItem(int item, const QString& text)
{
    if (!m_field.isSeveral)
        return setField(m_field.id, text);
    QStringList all = items();
    if (item >= 0 && item < all.size())
        all[item] = text;
    else
        all.append(text);
    m_model.setItems(m_field.id, all);
}

QWidget* CardActions::anchor(int item) const
{
    StructureCard* card = m_cards.list().card(item);
    return card ? card->widget() : nullptr;
}

}  // namespace Quorbel
