#include "app/shell/OpenPanel.h"

#include "core/ImageRecord.h"
#include "ui/Theme.h"

#include <QFileInfo>

namespace Quorbel {

namespace {

QString imageFilter()
{
    QStringList patterns;
    for (const QString& extension : ImageTypes::extensions())
        patterns.append(QStringLiteral("*.") + extension);
    patterns.sort();
    return QStringLiteral("Images (%1)").arg(patterns.join(QLatin1Char(' ')));
}

}  // namespace

OpenPanel::OpenPanel(QWidget* parent)
    : QFileDialog(parent, QStringLiteral("Choose a folder of images, or one or more image files."))
{
    setOptions(DontUseNativeDialog | ReadOnly);
    setFileMode(ExistingFiles);
    setNameFilters({ imageFilter(), QStringLiteral("All files (*)") });
    setLabelText(QFileDialog::Accept, QStringLiteral("Open"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
}

void OpenPanel::open(QWidget* window, const Theme& theme, std::function<void(const QList<QUrl>&)> chosen)
{
    auto* panel = new OpenPanel(window);
    setTheme(panel, theme);
    connect(panel, &QDialog::accepted, panel, [panel, chosen] {
        QList<QUrl> urls;
        for (const QString& path : panel->selectedFiles())
            urls.append(QUrl::fromLocalFile(path));
        chosen(urls);
    });
    connect(panel, &QDialog::rejected, panel, [chosen] { chosen({}); });
    panel->show();
}

// Qt's own accept() would walk into a folder that is selected; a double-click does that still.
void OpenPanel::accept()
{
    const QStringList paths = selectedFiles();
    for (const QString& path : paths)
        if (!QFileInfo::exists(path))
            return;  // mistyped: the panel stays
    if (paths.isEmpty())
        return;
    QDialog::accept();
}

}  // namespace Quorbel
