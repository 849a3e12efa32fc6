#include "app/shell/AppDelegate.h"
#include "app/shell/UserLanguage.h"
#include "core/Product.h"
#include "core/language/Texts.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>

#include <fontconfig/fontconfig.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

// Also answers --help and --version, which end the process.
QStringList parsedFiles(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Quorbel::Texts::tr("Reads and edits the words inside photos."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"files"_s, Quorbel::Texts::tr("A folder of photos, or photos."),
        //: What a command line may hold behind the name of the program.
        Quorbel::Texts::tr("[files…]"));
    parser.process(application);
    return parser.positionalArguments();
}

}  // namespace

int main(int argc, char* argv[])
{
    using namespace Quorbel;
    AppDelegate::willFinishLaunching(argc, argv);

    // The fonts' configuration is read meanwhile: Qt asks for it at the first text, and it takes a fifth of the start.
    const std::jthread fonts([] { FcInit(); });

    // The desktop's token for this start; read before Qt takes it out of the environment.
    const QByteArray activationToken = qgetenv("XDG_ACTIVATION_TOKEN");
    QApplication application(argc, argv);

    QApplication::setOrganizationName(Product::name());
    QApplication::setApplicationName(Product::name());
    QApplication::setApplicationVersion(QString::fromUtf8(QUORBEL_VERSION));
    QApplication::setDesktopFileName(u"app.quorbel.Quorbel"_s);

    UserLanguage::speak(application);

    // What Qt's readers print about a photo, above all about one whose decoding was broken off, helps nobody.
    QLoggingCategory::setFilterRules(u"qt.gui.imageio*.warning=false"_s);

    const QList<QUrl> urls = AppDelegate::urlsOf(parsedFiles(application));

    AppDelegate delegate;
    if (delegate.handOver({ urls, activationToken }))
        return 0;

    delegate.finishLaunching(urls);
    return QApplication::exec();
}
