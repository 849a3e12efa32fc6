// What the end-to-end test needs on its stage beside the program: photos, a window to drag a folder from, and
// pictures of the screen. Usage: e2e_stage photos DIR COUNT | drag PATH | grab FILE
#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QUrl>
#include <QWidget>

namespace {

int makePhotos(const QString& folder, int count)
{
    for (int i = 0; i < count; ++i) {
        QImage image(480, 320, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, 0, 320);
        sky.setColorAt(0, QColor::fromHsv(i * 360 / count, 140, 230));
        sky.setColorAt(1, QColor::fromHsv((i * 360 / count + 40) % 360, 90, 120));
        painter.fillRect(image.rect(), sky);
        painter.end();
        if (!image.save(QStringLiteral("%1/photo %2.jpg").arg(folder).arg(i + 1), "JPEG"))
            return 1;
    }
    return 0;
}

class DragSource final : public QWidget {
public:
    explicit DragSource(const QUrl& url)
        : m_url(url)
    {
        setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint);
        setGeometry(0, 0, 60, 60);
    }

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        auto* data = new QMimeData;
        data->setUrls({ m_url });
        auto* drag = new QDrag(this);
        drag->setMimeData(data);
        // The program fetches the data after this returns, so the source stays until it is killed.
        drag->exec(Qt::CopyAction);
    }

private:
    QUrl m_url;
};

}  // namespace

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString command = arguments.value(1);
    if (command == QStringLiteral("photos"))
        return makePhotos(arguments.value(2), arguments.value(3).toInt());
    if (command == QStringLiteral("grab"))
        return QGuiApplication::primaryScreen()->grabWindow(0).save(arguments.value(2)) ? 0 : 1;
    if (command != QStringLiteral("drag"))
        return 2;
    DragSource source(QUrl::fromLocalFile(arguments.value(2)));
    source.show();
    return QApplication::exec();
}
