// Homes that disagree: one is taken, or all photos of a selection are made to agree; with the real tool, and all of it
// can be taken back.
#include "tests/app/model/JournaledPhotos.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Every tag but those of the file system, as it is stored.
QByteArray allTags(const QUrl& photo)
{
    return exiftool({ u"-G1"_s, u"-a"_s, u"-s"_s, u"-n"_s, u"-api"_s, u"struct=1"_s, u"--File:all"_s, u"--System:all"_s,
        u"--ExifTool:all"_s, photo.toLocalFile() });
}

struct Photos : JournaledPhotos {
    explicit Photos(const QMap<QString, QStringList>& tagged)
        : JournaledPhotos(tagged.keys())
    {
        for (auto tags = tagged.cbegin(); tags != tagged.cend(); ++tags) {
            QStringList arguments{ u"-q"_s, u"-overwrite_original"_s };
            for (const QString& tag : tags.value())
                arguments.append(u'-' + tag);
            if (!tags->isEmpty())
                exiftool(arguments << url(tags.key()).toLocalFile());
            before.insert(tags.key(), allTags(url(tags.key())));
        }
    }
    QStringList values(const QString& name, const QStringList& tags) const
    {
        QStringList arguments{ u"-s3"_s, u"-a"_s, u"-f"_s, u"-sep"_s, u"|"_s };
        for (const QString& tag : tags)
            arguments.append(u'-' + tag);
        return QString::fromUtf8(exiftool(arguments << url(name).toLocalFile())).split(u'\n', Qt::SkipEmptyParts);
    }
    QStringList unchanged() const
    {
        QStringList names;
        for (auto tags = before.cbegin(); tags != before.cend(); ++tags)
            if (allTags(url(tags.key())) == tags.value())
                names.append(tags.key().chopped(4));
        return names;
    }
    // Until the question is asked, or all is done.
    bool request()
    {
        model->requestMakeAgree();
        return QTest::qWaitFor(
                   [this] { return model->saveOpen() || (!model->isWorking() && !model->isSaving()); }, 30000)
            && QTest::qWaitFor([this] { return model->saveOpen() || !model->isWorking(); }, 30000);
    }
    QString banner() const { return model->errorMessage().value_or(QString()); }

    QMap<QString, QByteArray> before;
};

const QStringList titles{ u"XMP-dc:Title"_s, u"IPTC:ObjectName"_s };
const QStringList rights{ u"XMP-dc:Rights"_s, u"IPTC:CopyrightNotice"_s, u"IFD0:Copyright"_s };
const QStringList keywords{ u"IPTC:Keywords"_s, u"XMP-dc:Subject"_s };

}  // namespace

class tst_AppModelAgreeing : public QObject {
    Q_OBJECT

private slots:
    void severalPhotos();
    void nothingIsLost();
    void unsavedEditsFirst();
    void readOnly();
    void oneHomeForAll();
    void typedPathsAreOffered();
};

void tst_AppModelAgreeing::severalPhotos()
{
    Photos f({ { u"a.jpg"_s, { u"IPTC:ObjectName=other"_s, u"XMP-dc:Rights=X"_s, u"EXIF:Copyright=Y"_s } },
        { u"b.jpg"_s, { u"XMP-dc:Rights=X"_s, u"EXIF:Copyright=Z"_s } },
        { u"c.jpg"_s, { u"IPTC:ObjectName=c.jpg"_s, u"XMP-dc:Rights=X"_s } },
        { u"d.jpg"_s, { u"XMP-dc:Rights=X"_s, u"IPTC:CopyrightNotice=Z"_s } } });
    f->preferences().confirmMassEdit.set(true);
    QVERIFY(f.open());
    f.select(u"abc"_s);
    QVERIFY(f->canMakeAgree());
    QVERIFY(f.request());
    QCOMPARE(f->selectedDisagreements(), 2);
    QVERIFY(f->saveOpen());
    const AppModel::AgreementQuestion question{ 2, { { u"title"_s, 1 }, { u"copyright"_s, 2 } } };
    QCOMPARE(f->agreementQuestion(), question);
    f->cancelSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.unchanged().size(), 4);
    QCOMPARE(f->agreementQuestion(), std::nullopt);

    QVERIFY(f.request());
    f->confirmSaveDialog();
    QVERIFY(f->isSaving() && !f->canMakeAgree());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.banner(), QString());
    QCOMPARE(f.values(u"a.jpg"_s, titles), QStringList({ u"a.jpg"_s, u"a.jpg"_s }));
    QCOMPARE(f.values(u"a.jpg"_s, rights), QStringList({ u"X"_s, u"X"_s, u"X"_s }));
    QCOMPARE(f.values(u"b.jpg"_s, rights), QStringList({ u"X"_s, u"X"_s, u"X"_s }));
    QCOMPARE(f.values(u"b.jpg"_s, titles), QStringList({ u"b.jpg"_s, u"-"_s }));
    QCOMPARE(f.unchanged(), QStringList({ u"c"_s, u"d"_s }));
    QCOMPARE(f->unsavedCount(), 0);
    // A second time nothing is to be done, and nothing is asked.
    QVERIFY(f.request());
    QVERIFY(!f->saveOpen() && !f->canMakeAgree());
    QCOMPARE(f.unchanged(), QStringList({ u"c"_s, u"d"_s }));
    QCOMPARE(f->undoSaveText(), u"Undo Save of 2 photos"_s);
    QVERIFY(f.undo());
    QCOMPARE(f.unchanged().size(), 4);
}

// Each in its own way: lists are brought together, seconds stay, several creators and another standard's are left
// alone.
void tst_AppModelAgreeing::nothingIsLost()
{
    Photos f({ { u"a.jpg"_s, { u"IPTC:Keywords=k"_s, u"XMP-dc:Subject=k"_s, u"XMP-dc:Subject=m"_s } },
        { u"b.jpg"_s,
            { u"EXIF:DateTimeOriginal=2024:05:06 14:30:12"_s, u"EXIF:SubSecTimeOriginal=50"_s,
                u"XMP-photoshop:DateCreated=2023:01:01 10:00:00"_s } },
        { u"c.jpg"_s, { u"XMP-iptcExt:CreatorName=Ann"_s, u"XMP-dc:Creator=Ben"_s, u"IPTC:By-line=Ben"_s } },
        { u"d.jpg"_s, { u"XMP-dc:Creator=Ann"_s, u"XMP-dc:Creator=Ben"_s, u"IPTC:By-line=Ann"_s } },
        { u"e.jpg"_s, { u"XMP-iptcExt:CreatorName=Ann"_s, u"XMP-dc:Creator=Ben"_s, u"EXIF:Artist=Cid"_s } } });
    QVERIFY(f.open());
    f->selectAllPhotos();
    QVERIFY(f.request());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.banner(), QString());
    QCOMPARE(f.values(u"a.jpg"_s, keywords), QStringList({ u"k|m"_s, u"k|m"_s }));
    QCOMPARE(f.values(u"b.jpg"_s,
                 { u"ExifIFD:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s, u"ExifIFD:SubSecTimeOriginal"_s }),
        QStringList({ u"2024:05:06 14:30:12"_s, u"2024:05:06 14:30:12"_s, u"50"_s }));
    QCOMPARE(f.values(u"e.jpg"_s, { u"XMP-dc:Creator"_s, u"IPTC:By-line"_s, u"IFD0:Artist"_s }),
        QStringList({ u"Ben"_s, u"Ben"_s, u"Ben"_s }));
    QCOMPARE(f.unchanged(), QStringList({ u"c"_s, u"d"_s }));
    QVERIFY(f.undo());
    QCOMPARE(f.unchanged().size(), 5);
}

void tst_AppModelAgreeing::unsavedEditsFirst()
{
    Photos f({ { u"a.jpg"_s, { u"IPTC:ObjectName=other"_s } } });
    f->preferences().saveDontAsk.set(false);
    QVERIFY(f.open());
    f->setSingle(u"copyright"_s, u"C"_s);
    QVERIFY(f.request());
    QVERIFY(f->saveOpen() && !f->agreementQuestion());
    f->cancelSaveDialog();
    QCOMPARE(f->unsavedCount(), 1);
    QVERIFY(!f->saveOpen());
    QVERIFY(f.request());
    f->confirmSaveDialog();
    QVERIFY(QTest::qWaitFor([&f] { return f->agreementQuestion().has_value(); }, 30000));
    QCOMPARE(f.values(u"a.jpg"_s, titles), QStringList({ u"a.jpg"_s, u"other"_s }));
    // Who goes to nothing else is asked; the answer No leaves all as it is.
    f->discardSaveDialog();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.values(u"a.jpg"_s, titles), QStringList({ u"a.jpg"_s, u"other"_s }));
    QCOMPARE(f.values(u"a.jpg"_s, rights), QStringList({ u"C"_s, u"C"_s, u"C"_s }));
}

void tst_AppModelAgreeing::readOnly()
{
    Photos f({ { u"a.jpg"_s, { u"IPTC:ObjectName=other"_s } }, { u"b.jpg"_s, { u"IPTC:ObjectName=other"_s } } });
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner));
    QVERIFY(f.open());
    f->selectAllPhotos();
    QVERIFY(f.request());
    QVERIFY(f.waitUntilIdle());
    QVERIFY2(f.banner().contains(u"b.jpg"_s) && f.banner().contains(u"read-only"_s), qPrintable(f.banner()));
    QVERIFY(f.unchanged().contains(u"b"_s));
    QCOMPARE(f->unsavedCount(), 0);
    QVERIFY(f->canMakeAgree());
}

void tst_AppModelAgreeing::oneHomeForAll()
{
    Photos f({ { u"a.jpg"_s,
        { u"IPTC:Keywords=k"_s, u"IPTC:Keywords=l"_s, u"XMP-dc:Subject=k"_s, u"XMP-dc:Subject=m"_s,
            u"IPTC:ObjectName=other"_s } } });
    f.lookAtDetails();
    f->preferences().saveDontAsk.set(true);
    QVERIFY(f.open());
    QVERIFY(QTest::qWaitFor([&f] { return !f->differingHomes(u"keywords"_s).isEmpty(); }, 30000));
    const auto use = [&f](const QString& id, const QString& tag) {
        for (const FieldHome& home : f->differingHomes(id))
            if (home.tag == tag)
                return f->useHome(id, home);
    };
    // What is shown is right: the others are to hold it, too.
    use(u"title"_s, u"XMP-dc:Title"_s);
    use(u"keywords"_s, u"IPTC:Keywords"_s);
    QCOMPARE(f->editedSingle(), QSet<QString>({ u"title"_s, u"keywords"_s }));
    QVERIFY(f->differingHomes(u"title"_s).isEmpty());
    QVERIFY(f.save());
    QCOMPARE(f.banner(), QString());
    QCOMPARE(f.values(u"a.jpg"_s, titles), QStringList({ u"a.jpg"_s, u"a.jpg"_s }));
    QCOMPARE(f.values(u"a.jpg"_s, keywords), QStringList({ u"k|l"_s, u"k|l"_s }));
    QVERIFY(f->differingHomes(u"keywords"_s).isEmpty());
    QVERIFY(f.undo());
    QCOMPARE(f.unchanged().size(), 1);
    QVERIFY(QTest::qWaitFor([&f] { return !f->differingHomes(u"keywords"_s).isEmpty(); }, 30000));
}

void tst_AppModelAgreeing::typedPathsAreOffered()
{
    Photos f({ { u"a.jpg"_s, { u"XMP-lr:HierarchicalSubject=Places|France|Paris"_s } } });
    f.lookAtDetails();
    QVERIFY(f.open());
    f->addSingleListItem(u"keywords"_s, u"Cities > Pau"_s);
    const QStringList offered{ u"Cities|Pau"_s, u"Places|France|Paris"_s };
    QVERIFY(QTest::qWaitFor([&] { return f->pathCompletions(u"pa"_s, 9) == offered; }, 30000));
    QCOMPARE(f->pathCompletions(u"pa"_s, 1), offered.first(1));
    QCOMPARE(f->pathsOf(u"Pau"_s), offered.first(1));
}

QTEST_GUILESS_MAIN(tst_AppModelAgreeing)
#include "tst_AppModelAgreeing.moc"
