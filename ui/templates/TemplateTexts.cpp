#include "ui/templates/TemplateTexts.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"

#include <QKeySequence>

namespace Quorbel::TemplateTexts {

QString shownLabel(const QString& key, const QString& label)
{
    return CustomFields::nameIn(key) ? label : Texts::shown(label);
}

QString keys(int digit)
{
    return QKeySequence(QKeyCombination(Qt::CTRL, Qt::Key(Qt::Key_0 + digit))).toString(QKeySequence::NativeText);
}

}  // namespace Quorbel::TemplateTexts
