#include "app/SelfTest.h"
#include "core/Product.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    // Before anything that needs a display.
    if (qEnvironmentVariableIsSet("QUORBEL_SELFTEST")) {
        const QCoreApplication application(argc, argv);
        Quorbel::SelfTest::run(qEnvironmentVariable("QUORBEL_SELFTEST"));
    }
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(Quorbel::Product::name());
    window.resize(1100, 720);
    window.show();
    return QApplication::exec();
}
