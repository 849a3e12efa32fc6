// The pictures of photos that the program itself renames, saves, closes and opens again.
#include "app/model/thumbnails/FollowModel.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>

#include <atomic>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

using Kind = ThumbnailStore::Kind;
using State = ThumbnailStore::State;

namespace {

constexpr int longest = 20000;  // milliseconds; only a failing test, or a very busy machine, waits that long

ThumbnailStoreOptions options(std::atomic<int>& decoded)
{
    ThumbnailStoreOptions options;
    options.workers = 1;
    options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
    options.decode = [&decoded](const QString& path, int, const std::stop_token&) {
        ++decoded;
        return DecodedImage{ .outcome = DecodedImage::Outcome::decoded,
            .image = QImage(path).convertToFormat(QImage::Format_RGB32) };
    };
    return options;
}

}  // namespace

class tst_FollowModel : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void renamingOneToTheNameOfAnother()
    {
        Pictures p(u"ac"_s);
        QVERIFY(p.areReady(u"ac"_s));
        const int decoded = p.decoded;
        p.rename(u"a"_s, u"z"_s);
        p.rename(u"c"_s, u"a"_s);
        QCOMPARE(p.color(u"z"_s), colorOf('a'));
        QCOMPARE(p.color(u"a"_s), colorOf('c'));
        QVERIFY(p.areReady(u"az"_s));
        QCOMPARE(p.decoded, decoded);
    }

    void savingAndTakingItBack()
    {
        Pictures p(u"ab"_s);
        QVERIFY(p.areReady(u"ab"_s));
        const int decoded = p.decoded;
        QSignalSpy changes(&p.store, &ThumbnailStore::entryChanged);
        p.model.select(u"ab"_s);
        p.model->setBatch(u"title"_s, u"Harbor"_s);
        p.model->preferences().confirmMassEdit.set(false);
        p.model->requestSave();
        // Whatever is painted meanwhile finds its picture.
        QTRY_VERIFY_WITH_TIMEOUT(p.areShown(u"ab"_s) && !p.model->isSaving() && p.model.waitUntilIdle(), longest);
        QCOMPARE(p.model.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"Harbor"_s);
        QVERIFY(p.areReady(u"ab"_s));
        p.model->undoSave();
        QTRY_VERIFY_WITH_TIMEOUT(p.areShown(u"ab"_s) && !p.model->isSaving() && p.model.waitUntilIdle(), longest);
        QVERIFY(p.areReady(u"ab"_s));
        QCOMPARE(p.decoded, decoded);
        QCOMPARE(changes.size(), 0);
    }

    void closingReplacingAndOpeningAgain()
    {
        Pictures p(u"ac"_s);
        QVERIFY(p.areReady(u"ac"_s));
        p.model->closeFolder();
        QVERIFY(QFile::remove(p.path(u"a"_s)) && QFile::rename(p.path(u"c"_s), p.path(u"a"_s)));
        // What a view would paint at the first moment.
        QList<bool> isShown;
        connect(p.model.model.get(), &AppModel::visibleRowsChanged, this, [&] {
            if (!p.model->records().isEmpty())
                isShown.append(!p.store.entry(p.model.url(u"a.jpg"_s), Kind::small).image.isNull());
        });
        QVERIFY(p.model.open());
        QVERIFY(!isShown.isEmpty() && !isShown.contains(true));
        QVERIFY(p.areReady(u"a"_s));
        QCOMPARE(p.color(u"a"_s), colorOf('c'));
    }

private:
    static QColor colorOf(char letter) { return letter == 'a' ? Qt::red : letter == 'b' ? Qt::green : Qt::blue; }

    // A folder of pictures of one color each, open, with a store that keeps them.
    struct Pictures {
        explicit Pictures(const QString& letters)
            : store(options(decoded))
        {
            followModel(store, *model.model);
            for (const QChar letter : letters) {
                QImage image(30, 20, QImage::Format_RGB32);
                image.fill(colorOf(letter.toLatin1()));
                isGood = image.save(path(letter)) && isGood;
            }
            isGood = model.open() && isGood;
        }
        QString path(const QString& letter) const { return model.url(letter + u".jpg"_s).toLocalFile(); }
        void rename(const QString& from, const QString& to)
        {
            model.select(from);
            model->preferences().renamePattern.set(to);
            model->performRename();
        }
        bool areReady(const QString& letters)
        {
            return isGood
                && QTest::qWaitFor(
                    [&] {
                        bool ready = true;
                        for (const QChar letter : letters)
                            ready = store.request(model.url(letter + u".jpg"_s), Kind::small).state == State::ready
                                && ready;
                        return ready;
                    },
                    longest);
        }
        bool areShown(const QString& letters)
        {
            for (const QChar letter : letters)
                isGood = store.request(model.url(letter + u".jpg"_s), Kind::small).state == State::ready && isGood;
            return isGood;
        }
        QColor color(const QString& letter) const
        {
            const QImage image = store.entry(model.url(letter + u".jpg"_s), Kind::small).image;
            const auto pure = [](int channel) { return channel > 127 ? 255 : 0; };
            const QColor color = image.isNull() ? QColor() : image.pixelColor(15, 10);
            return QColor(pure(color.red()), pure(color.green()), pure(color.blue()));
        }

        std::atomic<int> decoded = 0;
        bool isGood = true;
        ThumbnailStore store;
        ModelFixture model;
    };
};

QTEST_GUILESS_MAIN(tst_FollowModel)
#include "tst_FollowModel.moc"
