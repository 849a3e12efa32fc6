// What the end-to-end test needs on its stage beside the program: photos, a window to drag a folder from, and
// pictures of the screen. Usage: e2e_stage photos DIR COUNT | photo FILE | drag PATH | grab FILE
#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QUrl>
#include <QWidget>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// A line of hills across the picture, its crest at about `height` of the picture's own.
void paintHills(QPainter& painter, const QSizeF& size, qreal height, qreal phase, const QColor& color)
{
    QPolygonF hills{ QPointF(0, size.height()) };
    for (qreal x = 0; x <= size.width(); x += 4) {
        const qreal t = 2 * M_PI * x / size.width();
        const qreal crest = std::sin(t + phase) * 0.05 + std::sin(2.7 * t + 2 * phase) * 0.025;
        hills << QPointF(x, size.height() * (height - crest));
    }
    hills << QPointF(size.width(), size.height());
    painter.setBrush(color);
    painter.drawPolygon(hills);
}

// Evening landscapes, each in its own light.
QImage landscape(int i, int count)
{
    QImage image(1200, 800, QImage::Format_RGB32);
    const QSizeF size = image.size();
    const int hue = i * 360 / count;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(0, 0, 0, size.height() * 0.7);
    sky.setColorAt(0, QColor::fromHsv((hue + 210) % 360, 120, 190));
    sky.setColorAt(1, QColor::fromHsv((hue + 30) % 360, 110, 250));
    painter.fillRect(image.rect(), sky);
    painter.setBrush(QColor::fromHsv((hue + 45) % 360, 50, 255));
    painter.drawEllipse(QPointF(size.width() * (0.25 + 0.06 * (i % 8)), size.height() * 0.4), 52, 52);
    for (int layer = 0; layer < 4; ++layer)
        paintHills(painter, size, 0.5 + 0.12 * layer, i * 1.3 + layer * 1.9,
            QColor::fromHsv((hue + 220) % 360, 70 + 20 * layer, 150 - 34 * layer));
    return image;
}

int makePhotos(const QString& folder, int count)
{
    for (int i = 0; i < count; ++i)
        if (!landscape(i, count).save(u"%1/photo %2.jpg"_s.arg(folder).arg(i + 1), "JPEG", 90))
            return 1;
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
    if (command == u"photos"_s)
        return makePhotos(arguments.value(2), arguments.value(3).toInt());
    if (command == u"photo"_s)  // in the format of its name
        return landscape(0, 1).save(arguments.value(2)) ? 0 : 1;
    if (command == u"grab"_s)
        return QGuiApplication::primaryScreen()->grabWindow(0).save(arguments.value(2)) ? 0 : 1;
    if (command != u"drag"_s)
        return 2;
    DragSource source(QUrl::fromLocalFile(arguments.value(2)));
    source.show();
    return QApplication::exec();
}
