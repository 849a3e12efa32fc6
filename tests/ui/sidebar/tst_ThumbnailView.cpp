#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/support/Support.h"
#include "tests/ui/UiSupport.h"
#include "ui/sidebar/ThumbnailView.h"

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_ThumbnailView : public QObject {
    Q_OBJECT

private slots:
    void init() { Test::failOnWarnings(); }

    void aThumbnailIsAskedForWhenItIsShown()
    {
        ThumbnailStoreOptions options;
        QStringList decoded;
        options.workers = 1;
        options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
        options.decode = [&decoded](const QString& path, int longSide, const std::stop_token&) {
            decoded.append(path);
            DecodedImage result;
            result.outcome = DecodedImage::Outcome::decoded;
            result.image = QImage(longSide, longSide / 2, QImage::Format_RGB32);
            result.image.fill(Qt::green);
            return result;
        };
        const Test::PhotoFolder folder;
        const QUrl photo = folder.add(u"lake.jpg"_s);
        ThumbnailStore store(options);
        Test::Stage stage;
        auto* view = stage.add(new ThumbnailView(&store, 60, 9));
        view->setUrl(photo);
        QCOMPARE(view->accessibleName(), u"Thumbnail of lake.jpg"_s);
        QCOMPARE(store.entry(photo, ThumbnailStore::Kind::small).state, ThumbnailStore::State::none);
        stage.show();
        QTRY_COMPARE(Test::colorAt(view, { 30, 3 }), QColor(Qt::green));
        QCOMPARE(decoded, QStringList(photo.toLocalFile()));
        // Clipped to the rounded corner: what shows there is the window behind.
        QVERIFY(Test::colorAt(view, { 0, 0 }) != QColor(Qt::green));
        QCOMPARE(QAccessible::queryAccessibleInterface(view)->role(), QAccessible::Graphic);
    }
};

QTEST_MAIN(tst_ThumbnailView)
#include "tst_ThumbnailView.moc"
