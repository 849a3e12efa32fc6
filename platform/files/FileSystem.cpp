#include "platform/files/FileSystem.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>
#include <array>
#include <ctime>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

enum class Told { yes, no };
// How finely dates are kept: with the kernel's clock, or in whole seconds, every other second, or another machine's.
enum class Clock { tick, coarse };

struct Row {
    const char* type;
    quint32 number;  // as statfs() has it; 0 where it has none of its own
    Told told;
    Clock clock;
};

// Of several rows with one number, the first holds for the number alone. Dates of ext2 and ext3 may be whole seconds.
constexpr std::array rows{
    Row{ "ext2", 0xEF53, Told::yes, Clock::coarse },
    Row{ "ext3", 0xEF53, Told::yes, Clock::coarse },
    Row{ "ext4", 0xEF53, Told::yes, Clock::tick },
    Row{ "btrfs", 0x9123683E, Told::yes, Clock::tick },
    Row{ "xfs", 0x58465342, Told::yes, Clock::tick },
    Row{ "f2fs", 0xF2F52010, Told::yes, Clock::tick },
    Row{ "zfs", 0x2FC12FC1, Told::yes, Clock::tick },
    Row{ "bcachefs", 0xCA451A4E, Told::yes, Clock::tick },
    Row{ "jfs", 0x3153464A, Told::yes, Clock::tick },
    Row{ "nilfs2", 0x3434, Told::yes, Clock::tick },
    Row{ "tmpfs", 0x01021994, Told::yes, Clock::tick },
    Row{ "ramfs", 0x858458F6, Told::yes, Clock::tick },
    Row{ "overlay", 0x794C7630, Told::yes, Clock::tick },
    Row{ "ecryptfs", 0xF15F, Told::yes, Clock::tick },
    Row{ "reiserfs", 0x52654973, Told::yes, Clock::coarse },
    Row{ "vfat", 0x4D44, Told::yes, Clock::coarse },
    Row{ "msdos", 0x4D44, Told::yes, Clock::coarse },
    Row{ "exfat", 0x2011BAB0, Told::yes, Clock::coarse },
    Row{ "ntfs", 0x5346544E, Told::yes, Clock::coarse },
    Row{ "ntfs3", 0x7366746E, Told::yes, Clock::coarse },
    Row{ "hfs", 0x4244, Told::yes, Clock::coarse },
    Row{ "hfsplus", 0x482B, Told::yes, Clock::coarse },
    Row{ "udf", 0x15013346, Told::yes, Clock::coarse },
    Row{ "iso9660", 0x9660, Told::yes, Clock::coarse },
    // Other machines write there.
    Row{ "nfs", 0x6969, Told::no, Clock::coarse },
    Row{ "nfs4", 0x6969, Told::no, Clock::coarse },
    Row{ "cifs", 0xFF534D42, Told::no, Clock::coarse },
    Row{ "smb3", 0xFE534D42, Told::no, Clock::coarse },
    Row{ "smbfs", 0x517B, Told::no, Clock::coarse },
    Row{ "ncpfs", 0x564C, Told::no, Clock::coarse },
    Row{ "afs", 0x5346414F, Told::no, Clock::coarse },
    Row{ "afs", 0x6B414653, Told::no, Clock::coarse },
    Row{ "coda", 0x73757245, Told::no, Clock::coarse },
    Row{ "ceph", 0x00C36400, Told::no, Clock::coarse },
    Row{ "glusterfs", 0, Told::no, Clock::coarse },
    Row{ "lustre", 0x0BD00BD0, Told::no, Clock::coarse },
    Row{ "gpfs", 0x47504653, Told::no, Clock::coarse },
    Row{ "beegfs", 0x19830326, Told::no, Clock::coarse },
    Row{ "pvfs2", 0x20030528, Told::no, Clock::coarse },
    // One disk, several machines.
    Row{ "gfs2", 0x01161970, Told::no, Clock::coarse },
    Row{ "ocfs2", 0x7461636F, Told::no, Clock::coarse },
    // The host of a virtual machine writes there.
    Row{ "9p", 0x01021997, Told::no, Clock::coarse },
    Row{ "vboxsf", 0x786F4256, Told::no, Clock::coarse },
    Row{ "vmhgfs", 0xBACBACBC, Told::no, Clock::coarse },
    Row{ "prl_fs", 0x7C7C6673, Told::no, Clock::coarse },
    Row{ "hostfs", 0x00C0FFEE, Told::no, Clock::coarse },
    Row{ "virtiofs", 0, Told::no, Clock::coarse },
    // A program answers, and whence it has its files nobody knows: sshfs, rclone, gvfsd-fuse.
    Row{ "fuse", 0x65735546, Told::no, Clock::coarse },
    // A program too, but over a disk of this machine that it has for itself: ntfs-3g.
    Row{ "fuseblk", 0, Told::yes, Clock::coarse },
};

std::chrono::nanoseconds step(Clock clock)
{
    using std::chrono::nanoseconds;
    using std::chrono::seconds;
    timespec tick{};
    // The clock that the kernel takes the dates of files from.
    if (clock == Clock::tick && clock_getres(CLOCK_REALTIME_COARSE, &tick) == 0)
        return seconds(tick.tv_sec) + nanoseconds(tick.tv_nsec);
    return seconds(2);
}

FileSystem answer(const QString& type, Told told, Clock clock)
{
    return { type, told == Told::yes, step(clock) };
}

// "server:/photos", "//server/photos": another machine.
bool isElsewhere(const QString& source)
{
    return source.startsWith(u"//"_s) || source.contains(u":/"_s);
}

// The system's name for what is mounted there, by the mount's number; nothing before Linux 5.8.
std::optional<FileSystem> mounted(const QByteArray& path)
{
    struct statx status { };
    if (statx(AT_FDCWD, path.constData(), AT_STATX_DONT_SYNC, STATX_MNT_ID, &status) != 0
        || (status.stx_mask & STATX_MNT_ID) == 0)
        return std::nullopt;
    QFile table(u"/proc/self/mountinfo"_s);
    if (!table.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray number = QByteArray::number(quint64(status.stx_mnt_id));
    // 36 35 98:0 /root /mnt options [more …] - type source options
    const QByteArrayList lines = table.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QByteArrayList words = line.split(' ');
        const qsizetype dash = words.indexOf("-");
        if (words.constFirst() == number && dash >= 0 && dash + 2 < words.size())
            return FileSystem::named(QFile::decodeName(words.at(dash + 1)), QFile::decodeName(words.at(dash + 2)));
    }
    return std::nullopt;
}

}  // namespace

FileSystem FileSystem::named(const QString& type, const QString& source)
{
    // "fuse.sshfs", "fuseblk.ntfs"
    const QString kind = type.section(u'.', 0, 0);
    const auto row = std::find_if(
        rows.cbegin(), rows.cend(), [&kind](const Row& row) { return kind == QLatin1StringView(row.type); });
    if (row != rows.cend())
        return answer(type, row->told, row->clock);
    return answer(type, isElsewhere(source) ? Told::no : Told::yes, Clock::coarse);
}

FileSystem FileSystem::numbered(quint32 number)
{
    const auto row = std::find_if(
        rows.cbegin(), rows.cend(), [number](const Row& row) { return number != 0 && row.number == number; });
    if (row == rows.cend())
        return answer({}, Told::yes, Clock::coarse);
    return answer(QString::fromLatin1(row->type), row->told, row->clock);
}

FileSystem FileSystem::of(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    if (const auto known = mounted(name))
        return *known;
    struct statfs status { };
    return numbered(statfs(name.constData(), &status) == 0 ? quint32(status.f_type) : 0);
}

}  // namespace Quorbel
