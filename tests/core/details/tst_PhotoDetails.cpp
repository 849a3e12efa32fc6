// What the details run finds in photos that the real tool made: one run reads all of them.
#include "tests/support/RealService.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Photo {
    QString name{};
    QStringList assignments{};  ///< as the tool takes them, without their hyphens
    QMap<QString, QString> languages{};
    QStringList paths{};
};

QList<Photo> languagePhotos()
{
    return {
        { u"none.jpg"_s, { u"XMP-dc:Title=One"_s } },
        { u"codes.jpg"_s,
            { u"XMP-dc:Title=One"_s, u"XMP-dc:Title-DE=Eins"_s, u"XMP-dc:Title-en-us=First"_s,
                u"XMP-dc:Title-zh-Hans-CN=一"_s, u"XMP-dc:Title-x-Repair=1"_s, u"XMP-dc:Description-fr=Un"_s,
                u"XMP-dc:Rights-de=Alle"_s, u"XMP-iptcExt:Event-de=Fest"_s, u"XMP-xmpRights:UsageTerms-de=Keine"_s },
            { { u"title@de"_s, u"Eins"_s }, { u"title@en-US"_s, u"First"_s }, { u"title@zh-hans-cn"_s, u"一"_s },
                { u"title@x-repair"_s, u"1"_s }, { u"description@fr"_s, u"Un"_s }, { u"copyright@de"_s, u"Alle"_s },
                { u"event@de"_s, u"Fest"_s }, { u"usageTerms@de"_s, u"Keine"_s } } },
        { u"numbers.jpg"_s,
            { u"XMP-dc:Title-de=1.10"_s, u"XMP-dc:Title-fr=1e5"_s, u"XMP-dc:Title-it=-0"_s, u"XMP-dc:Title-es=007"_s,
                u"XMP-dc:Title-pt=1e999"_s, u"XMP-dc:Title-en=say \"5\" \\ 6"_s },
            { { u"title@de"_s, u"1.10"_s }, { u"title@fr"_s, u"1e5"_s }, { u"title@it"_s, u"-0"_s },
                { u"title@es"_s, u"007"_s }, { u"title@pt"_s, u"1e999"_s }, { u"title@en"_s, u"say \"5\" \\ 6"_s } } },
    };
}

QList<Photo> pathPhotos()
{
    const QString tree = u"XMP-acdsee:Categories=<Categories><Category Assigned=\"0\">Places<Category Assigned=\"1\">"
                         "Rome</Category></Category></Categories>"_s;
    return {
        { u"one home.jpg"_s,
            { u"XMP-lr:HierarchicalSubject=Places|France|Paris"_s, u"XMP-lr:HierarchicalSubject=Years|2024"_s }, {},
            { u"Places|France|Paris"_s, u"Years|2024"_s } },
        { u"two homes.png"_s,
            { u"XMP-digiKam:TagsList=Places/Paris"_s, u"XMP-digiKam:TagsList=plain"_s,
                u"XMP-lr:HierarchicalSubject=Bands|AC/DC"_s, u"XMP-lr:HierarchicalSubject=Places|Paris"_s },
            {}, { u"Places|Paris"_s, u"Bands|AC/DC"_s } },
        { u"all homes.tif"_s,
            { u"XMP-digiKam:TagsList=a/b"_s, u"XMP-lr:HierarchicalSubject=a|c"_s, u"XMP-microsoft:LastKeywordXMP=a/d"_s,
                u"XMP-mediapro:CatalogSets=a|e"_s, tree },
            {}, { u"a|b"_s, u"a|c"_s, u"a|d"_s, u"a|e"_s, u"Places|Rome"_s } },
    };
}

// The record that a read would make of it.
ImageRecord recordOf(const QUrl& url)
{
    ImageRecord record;
    record.url = url;
    return record;
}

}  // namespace

class tst_PhotoDetails : public QObject {
    Q_OBJECT

private slots:
    void languagesAndPathsAreFound()
    {
        const PhotoFolder folder;
        const QList<Photo> photos = languagePhotos() + pathPhotos();
        QList<ImageRecord> records;
        for (const Photo& photo : photos) {
            QStringList arguments{ u"-q"_s, u"-overwrite_original"_s };
            for (const QString& assignment : photo.assignments)
                arguments.append(u'-' + assignment);
            const QUrl url = folder.add(photo.name);
            exiftool(arguments << url.toLocalFile());
            records.append(recordOf(url));
        }
        records.append(recordOf(folder.add(u"empty.jpg"_s, {})));
        records.append(recordOf(folder.url(u"gone.jpg"_s)));
        qsizetype progress = 0;
        const auto found = realService().details(
            records, { .progress = [&](qsizetype done) { progress = done; }, .stop = {}, .started = {} });
        QCOMPARE(found.size(), photos.size());
        QVERIFY(progress >= photos.size());
        for (const Photo& photo : photos) {
            const PhotoDetails details = found.value(folder.url(photo.name));
            QVERIFY2(details.languages == photo.languages, qPrintable(photo.name));
            QVERIFY2(details.paths == photo.paths, qPrintable(photo.name));
        }
    }
};

QTEST_GUILESS_MAIN(tst_PhotoDetails)
#include "tst_PhotoDetails.moc"
