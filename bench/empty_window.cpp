// The other side of the start benchmark: an empty Qt Widgets window that says when it was painted.
#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace {

class Window final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override
    {
        QTimer::singleShot(0, this, [] { std::fputs("first paint\n", stderr); });
    }
};

}  // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Window window;
    window.resize(1240, 800);
    window.show();
    return QApplication::exec();
}
