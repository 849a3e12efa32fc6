// What the menus of some cards offer beside their own: a place is filled from the Location fields, or fills them, or is
// looked up; a contact or a licensor that was saved before is picked again; a genre, a topic, a region's kind is chosen
// from its vocabulary.
// Thread: the main thread. What comes of it are unsaved edits of the model.
#pragma once

#include "core/schema/FieldSpec.h"
#include "core/schema/LocationFill.h"
#include "ui/inspector/iptc/StructureCards.h"

#include <QObject>

namespace Quorbel {

class AppModel;
class PlaceProvider;
class RememberedPopover;
struct TermOffer;

class CardActions final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CardActions)

public:
    /// Of the cards of this field, which own it. Fields that have no such action get none. The provider may be null.
    CardActions(AppModel& model, PlaceProvider* places, const FieldSpec& field, StructureCards& cards);

private:
    void offerPlaces();
    void offerRemembered();
    void offerTerms();
    void chooseTerm(const TermOffer& offer, int item);
    /// The text for what the field holds.
    QString either(const QString& contact, const QString& licensor) const;
    QString ofLocation(int item) const;
    QList<LocationFill::Assignment> toLocation(int item) const;
    QString whyNotFrom(int item) const;
    QString whyNotTo(int item) const;
    void copyFromLocation(int item);
    void copyToLocation(int item);
    void searchPlace(int item);
    void pickRemembered(int item);
    void showRemembered(RememberedPopover& popover) const;
    QString fieldText(const QString& id) const;
    void setField(const QString& id, const QString& text);
    QStringList items() const { return m_cards.state().items; }
    void setItem(int item, const QString& text);
    QWidget* anchor(int item) const;

    AppModel& m_model;
    PlaceProvider* m_places;
    const FieldSpec& m_field;
    StructureCards& m_cards;
};

}  // namespace Quorbel
