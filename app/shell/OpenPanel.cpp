#include "app/shell/OpenPanel.h"

#include "core/schema/ImageTypes.h"
#include "ui/controls/theme/Theme.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString imageFilter()
{
    QStringList patterns;
    for (const QString& extension : ImageTypes::extensions())
        patterns.append(u"*."_s + extension);
    patterns.sort();
    return u"Images (%1)"_s.arg(patterns.join(QLatin1Char(' ')));
}

QString titleFor(OpenPanel::Choice choice)
{
    return choice == OpenPanel::Choice::folder ? u"Choose a folder of images. The folders in it are opened as well."_s
                                               : u"Choose a folder of images, or one or more image files."_s;
}

}  // namespace

OpenPanel::OpenPanel(Choice choice, QWidget* parent)
    : QFileDialog(parent, titleFor(choice))
    , m_choice(choice)
{
    setOptions(DontUseNativeDialog | ReadOnly);
    setOption(ShowDirsOnly, choice == Choice::folder);
    setFileMode(choice == Choice::folder ? Directory : ExistingFiles);
    if (choice == Choice::any)
        setNameFilters({ imageFilter(), u"All files (*)"_s });
    setLabelText(QFileDialog::Accept, u"Open"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    // The dialog disables Open while nothing is selected; here that means the folder that is shown.
    for (auto* box : findChildren<QDialogButtonBox*>())
        if (QPushButton* button = box->button(QDialogButtonBox::Open)) {
            button->setEnabled(true);
            button->installEventFilter(this);
        }
}

void OpenPanel::open(
    QWidget* window, const Theme& theme, Choice choice, const std::function<void(const QList<QUrl>&)>& chosen)
{
    auto* panel = new OpenPanel(choice, window);
    setTheme(panel, theme);
    connect(panel, &QDialog::accepted, panel, [panel, chosen] {
        QList<QUrl> urls;
        for (const QString& path : std::as_const(panel->m_paths))
            urls.append(QUrl::fromLocalFile(path));
        chosen(urls);
    });
    connect(panel, &QDialog::rejected, panel, [chosen] { chosen({}); });
    panel->show();
}

// Qt's own accept() would walk into a folder that is selected; a double-click does that still.
void OpenPanel::accept()
{
    m_paths = selectedFiles();
    if (m_paths.isEmpty())
        m_paths.append(directory().absolutePath());
    for (const QString& path : std::as_const(m_paths))
        if (!isGood(path))
            return;  // mistyped: the panel stays
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): see above
}

bool OpenPanel::isGood(const QString& path) const
{
    const QFileInfo file(path);
    return m_choice == Choice::folder ? file.isDir() : file.exists();
}

bool OpenPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (auto* button = qobject_cast<QPushButton*>(watched); button && event->type() == QEvent::EnabledChange)
        button->setEnabled(true);
    return QFileDialog::eventFilter(watched, event);
}

}  // namespace Quorbel
