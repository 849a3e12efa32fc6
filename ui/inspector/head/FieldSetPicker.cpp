#include "ui/inspector/head/FieldSetPicker.h"

#include "app/model/fieldsets/FieldSets.h"
#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

ChoicePicker* makeFieldSetPicker(FieldSets& sets, QWidget* parent)
{
    auto* picker = new ChoicePicker(Texts::tr("Field set"), fieldSetPickerWidth, parent);
    const auto follow = [picker, &sets] {
        const QStringList names = sets.names();
        QStringList titles;
        for (const QString& name : names)
            titles.append(Texts::shown(name));
        if (titles != picker->titles())
            picker->setTitles(titles);
        picker->setCurrent(int(names.indexOf(sets.current())));
        picker->setVisible(sets.isOffered());
    };
    QObject::connect(&sets, &FieldSets::changed, picker, follow);
    QObject::connect(picker, &ChoicePicker::picked, &sets, [&sets](int row) { sets.choose(sets.names().value(row)); });
    follow();
    return picker;
}

}  // namespace Quorbel
