#include "tests/ui/inspector/HalfRead.h"

namespace Quorbel::Test {

namespace {

constexpr int photoCount = 72;

}  // namespace

HalfRead::HalfRead()
{
    photos.services.service = tool.service();
    photos.relaunch();
    const QStringList common{ u"-XMP-dc:Description=First\nsecond\nthird\nfourth\nfifth"_s, u"-GPSLatitude=47.3769"_s,
        u"-GPSLatitudeRef=N"_s, u"-GPSLongitude=8.5417"_s, u"-GPSLongitudeRef=E"_s, u"-EXIF:Model=E-M5"_s,
        u"-XMP:Rating=4"_s };
    add(u"a.jpg"_s, common + QStringList{ u"-XMP-dc:Title=One"_s });
    add(u"b.jpg"_s, common + QStringList{ u"-XMP-dc:Title=Two"_s });
    for (int i = 0; i < photoCount - 2; ++i)
        add(u"c%1.jpg"_s.arg(i), common + QStringList{ u"-XMP-dc:Title=Two"_s });
}

bool HalfRead::openHalf(QSize size)
{
    tool.shut("a.jpg");
    if (!show(size))
        return false;
    model().load({ photos.folderURL() });
    return QTest::qWaitFor([this] { return unread() == QStringList{ u"a.jpg"_s }; }, 120'000);
}

bool HalfRead::openUnread(QSize size)
{
    tool.shut();
    if (!show(size))
        return false;
    model().load({ photos.folderURL() });
    return QTest::qWaitFor([this] { return model().records().size() == photoCount; }, 30'000);
}

bool HalfRead::readAll()
{
    tool.release();
    // Many are read at low priority, which takes its time beside other programs.
    return QTest::qWaitFor([this] { return !model().records().isEmpty() && unread().isEmpty(); }, 120'000);
}

QStringList HalfRead::unread() const
{
    QStringList names;
    for (const ImageRecord& record : model().records())
        if (record.isUnread)
            names.append(record.fileName);
    return names;
}

}  // namespace Quorbel::Test
