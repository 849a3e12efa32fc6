#include "ui/window/ModelSheets.h"

#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/sidecars/MovingOver.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "app/model/words/QuickKeywords.h"
#include "ui/sheets/Sheet.h"
#include "ui/window/ContentFactories.h"

namespace Quorbel {

ModelSheets::ModelSheets(AppModel& model, SheetHost* host, const ContentFactories& factories, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    add(
        model, &AppModel::addOpenChanged, [&model] { return model.addOpen(); }, factories.addField);
    add(
        model, &AppModel::saveOpenChanged, [&model] { return model.saveOpen(); }, factories.save);
    add(
        model, &AppModel::renameOpenChanged, [&model] { return model.renameOpen(); }, factories.rename);
    QuickKeywords& quick = model.quickKeywords();
    add(
        quick, &QuickKeywords::editedChanged, [&quick] { return quick.edited().has_value(); }, factories.quickSet);
    FieldSets& sets = model.fieldSets();
    add(
        sets, &FieldSets::editingChanged, [&sets] { return sets.isEditing(); }, factories.fieldSets);
    TimeShifting& shifting = model.timeShifting();
    add(
        shifting, &TimeShifting::openChanged, [&shifting] { return shifting.isOpen(); }, factories.shiftTime);
    MovingOver& moving = model.movingOver();
    add(
        moving, &MovingOver::openChanged, [&moving] { return moving.isOpen(); }, factories.moveOver);
    PhotosRenaming& renaming = model.renaming();
    add(
        renaming, &PhotosRenaming::openChanged, [&renaming] { return renaming.isOpen(); }, factories.renamePhotos);
    FieldPasting& pasting = model.pasting();
    add(
        pasting, &FieldPasting::openChanged, [&pasting] { return pasting.isOpen(); }, factories.pasteFields);
    Templates& templates = model.templates();
    add(
        templates, &Templates::openChanged, [&templates] { return templates.isOpen(); }, factories.templates);
}

template <typename Sender, typename Signal>
void ModelSheets::add(const Sender& sender, Signal changed, const std::function<bool()>& isOpen, const Factory& make)
{
    Sheet& sheet = m_sheets.emplace_back(Sheet{ isOpen, make });
    connect(&sender, changed, this, [this, &sheet] { follow(sheet); });
    follow(sheet);
}

void ModelSheets::follow(Sheet& sheet)
{
    const bool isOpen = sheet.isOpen();
    if (isOpen && !sheet.shown && sheet.make) {
        sheet.shown = sheet.make();
        m_host->present(sheet.shown);
    } else if (!isOpen && sheet.shown) {
        m_host->dismiss(std::exchange(sheet.shown, nullptr));
    }
}

}  // namespace Quorbel
