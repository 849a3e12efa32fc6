#include "app/shell/OpenPanel.h"

#include "core/language/Texts.h"
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
    //: Which files a panel lists; %1 is a list of endings.
    return Texts::tr("Images (%1)").arg(patterns.join(QLatin1Char(' ')));
}

QString titleFor(OpenPanel::Choice choice)
{
    switch (choice) {
    case OpenPanel::Choice::folder:
        return Texts::tr("Choose a folder of images. The folders in it are opened as well.");
    case OpenPanel::Choice::text:
        return Texts::tr("Choose a text file of codes: a code, a tab, and its text in each line.");
    case OpenPanel::Choice::any:
        break;
    }
    return Texts::tr("Choose a folder of images, or one or more image files.");
}

QFileDialog::FileMode modeFor(OpenPanel::Choice choice)
{
    switch (choice) {
    case OpenPanel::Choice::folder:
        return QFileDialog::Directory;
    case OpenPanel::Choice::text:
        return QFileDialog::ExistingFile;
    case OpenPanel::Choice::any:
        break;
    }
    return QFileDialog::ExistingFiles;
}

}  // namespace

OpenPanel::OpenPanel(Choice choice, QWidget* parent)
    : QFileDialog(parent, titleFor(choice))
    , m_choice(choice)
{
    setOptions(DontUseNativeDialog | ReadOnly);
    setOption(ShowDirsOnly, choice == Choice::folder);
    setFileMode(modeFor(choice));
    if (choice == Choice::any)
        setNameFilters({ imageFilter(), Texts::tr("All files (%1)").arg(u'*') });
    if (choice == Choice::text)
        setNameFilters(
            { Texts::tr("Text files (%1)").arg(u"*.txt *.tsv *.tab *.csv"_s), Texts::tr("All files (%1)").arg(u'*') });
    setLabelText(QFileDialog::Accept,
        choice == Choice::text ? Texts::tr("Choose", "verb: this file") : Texts::tr("Open", "verb: these photos"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    if (choice == Choice::text)
        return;
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
    if (m_choice == Choice::text && (m_paths.isEmpty() || !isGood(m_paths.constFirst())))
        return QFileDialog::accept();
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
    if (m_choice == Choice::text)
        return file.isFile();
    return m_choice == Choice::folder ? file.isDir() : file.exists();
}

bool OpenPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (auto* button = qobject_cast<QPushButton*>(watched); button && event->type() == QEvent::EnabledChange)
        button->setEnabled(true);
    return QFileDialog::eventFilter(watched, event);
}

}  // namespace Quorbel
