// The table of file systems, and that the right row is found for a folder.
#include "platform/files/FileSystem.h"

#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_FileSystem : public QObject {
    Q_OBJECT

private slots:
    void byName_data();
    void byName();
    void byNumber_data();
    void byNumber();
    void ofAFolder();
};

void tst_FileSystem::byName_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("tells");
    QTest::addColumn<bool>("hasFineClock");
    const auto add = [](std::initializer_list<const char*> types, const char* source, bool tells, bool hasFineClock) {
        for (const char* type : types)
            QTest::addRow("%s", type) << QString::fromLatin1(source) << tells << hasFineClock;
    };
    add({ "ext4", "btrfs", "xfs", "f2fs", "zfs", "bcachefs", "tmpfs", "overlay" }, "/dev/sda1", true, true);
    add({ "ext2", "ext3", "vfat", "exfat", "ntfs3", "fuseblk", "fuseblk.exfat", "hfsplus", "one of next year" },
        "/dev/sdb1", true, false);
    add({ "nfs", "nfs4", "ceph", "glusterfs", "lustre", "another of next year" }, "server:/photos", false, false);
    add({ "cifs", "smb3", "a third one" }, "//server/photos", false, false);
    add({ "fuse", "fuse.sshfs", "fuse.rclone", "fuse.gvfsd-fuse", "fuse.glusterfs", "fuse.bindfs", "afs", "coda" },
        "anything", false, false);
    add({ "9p", "virtiofs", "vboxsf", "vmhgfs" }, "share", false, false);
    add({ "gfs2", "ocfs2" }, "/dev/sdc1", false, false);
}

void tst_FileSystem::byName()
{
    QFETCH(QString, source);
    QFETCH(bool, tells);
    QFETCH(bool, hasFineClock);
    const FileSystem found = FileSystem::named(QString::fromLatin1(QTest::currentDataTag()), source);
    QCOMPARE(found.type, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(found.tellsOfOthers, tells);
    // The kernel's tick is a few milliseconds.
    QVERIFY(hasFineClock ? found.clockStep > 0ns && found.clockStep < 100ms : found.clockStep == 2s);
}

void tst_FileSystem::byNumber_data()
{
    QTest::addColumn<quint32>("number");
    QTest::addColumn<bool>("tells");
    QTest::addColumn<bool>("hasFineClock");
    QTest::addRow("one of three that share it") << 0xEF53U << true << false;
    QTest::addRow("btrfs") << 0x9123683EU << true << true;
    QTest::addRow("nfs") << 0x6969U << false << false;
    QTest::addRow("fuse, whichever it is") << 0x65735546U << false << false;
    QTest::addRow("cifs") << 0xFF534D42U << false << false;
    QTest::addRow("unknown") << 0x12345678U << true << false;
    QTest::addRow("none") << 0U << true << false;
}

void tst_FileSystem::byNumber()
{
    QFETCH(quint32, number);
    QFETCH(bool, tells);
    QFETCH(bool, hasFineClock);
    const FileSystem found = FileSystem::numbered(number);
    QCOMPARE(found.tellsOfOthers, tells);
    QCOMPARE(found.clockStep < 2s, hasFineClock);
}

// Qt reads the table of mounts in its own way.
void tst_FileSystem::ofAFolder()
{
    const QTemporaryDir folder;
    for (const QString& path : { folder.path(), u"/proc"_s, u"/dev/shm"_s, u"/sys"_s })
        if (QStorageInfo(path).isValid())
            QCOMPARE(FileSystem::of(path).type, QString::fromLatin1(QStorageInfo(path).fileSystemType()));
    QVERIFY(QFile::link(u"/proc"_s, folder.filePath(u"link"_s)));
    QCOMPARE(FileSystem::of(folder.filePath(u"link"_s)).type, u"proc"_s);
    QCOMPARE(FileSystem::of(folder.filePath(u"nothing"_s)), FileSystem::named({}, {}));
}

QTEST_GUILESS_MAIN(tst_FileSystem)
#include "tst_FileSystem.moc"
