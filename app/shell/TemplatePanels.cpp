#include "app/shell/TemplatePanels.h"

#include "core/language/Texts.h"
#include "ui/controls/theme/Theme.h"

#include <QFileDialog>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QFileDialog* panel(QWidget* window, const QString& title)
{
    auto* dialog = new QFileDialog(window, title);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setNameFilters({ Texts::tr("Templates (%1)").arg(u"*.json"_s), Texts::tr("All files (%1)").arg(u'*') });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    setTheme(dialog, Theme::of(window));
    return dialog;
}

}  // namespace

Templates::Panels templatePanels(QWidget* window)
{
    return {
        .import =
            [window](const std::function<void(const QStringList&)>& chosen) {
                QFileDialog* dialog = panel(window, Texts::tr("Choose template files."));
                dialog->setFileMode(QFileDialog::ExistingFiles);
                QObject::connect(dialog, &QFileDialog::filesSelected, dialog, chosen);
                dialog->show();
            },
        .exportTo =
            [window](const QString& name, const std::function<void(const QString&)>& chosen) {
                QFileDialog* dialog = panel(window, Texts::tr("Choose where the template is to go."));
                dialog->setAcceptMode(QFileDialog::AcceptSave);
                dialog->setDefaultSuffix(u"json"_s);
                dialog->selectFile(name);
                QObject::connect(dialog, &QFileDialog::fileSelected, dialog, chosen);
                dialog->show();
            },
    };
}

}  // namespace Quorbel
