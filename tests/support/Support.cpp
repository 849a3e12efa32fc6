#include "tests/support/Support.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QUuid>

#include <csignal>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

namespace {

void require(bool condition, const QString& what)
{
    if (!condition)
        qFatal("Test set-up failed: %s", qPrintable(what));
}

QByteArray run(const QString& program, const QStringList& arguments, const QList<int>& allowedExits = { 0 })
{
    QProcess process;
    process.start(program, arguments);
    require(process.waitForStarted() && process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit
            && allowedExits.contains(process.exitCode()),
        program + u' ' + arguments.join(u' ') + u'\n' + QString::fromUtf8(process.readAllStandardError()));
    return process.readAllStandardOutput();
}

// The real tool, started once for all its runs: to start takes it longer than to read or write a photo.
class StayingTool {
public:
    QByteArray run(const QStringList& arguments)
    {
        if (m_process.state() == QProcess::NotRunning)
            start();
        const QStringList lines = arguments + QStringList{ u"-echo3"_s, u"status ${status}"_s, u"-execute1\n"_s };
        m_process.write(lines.join(u'\n').toUtf8());
        const QByteArray end("\n{ready1}\n");
        QByteArray output;
        while (!output.endsWith(end)) {
            const bool isMore = m_process.bytesAvailable() > 0 || m_process.waitForReadyRead(60'000);
            require(isMore, u"no answer to "_s + arguments.join(u' '));
            output += m_process.readAllStandardOutput();
        }
        output.chop(end.size());
        const QByteArray status("status 0");
        require(output.endsWith(status),
            arguments.join(u' ') + u'\n' + QString::fromUtf8(m_process.readAllStandardError()));
        m_process.readAllStandardError();
        output.chop(status.size());
        return output;
    }

private:
    void start()
    {
        m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_process.start(startedTool().perlURL.toLocalFile(),
            { startedTool().exiftoolURL.toLocalFile(), u"-stay_open"_s, u"True"_s, u"-@"_s, u"-"_s });
        require(m_process.waitForStarted(), u"ExifTool does not start"_s);
    }

    QProcess m_process;
};

// A socket of that name, which lives in no folder and ends with its last holder.
int listening(const QByteArray& name)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    require(name.size() < qsizetype(sizeof address.sun_path), QString::fromUtf8(name));
    std::memcpy(address.sun_path + 1, name.constData(), size_t(name.size()));
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + 1 + size_t(name.size()));
    const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    require(number >= 0 && bind(number, reinterpret_cast<const sockaddr*>(&address), length) == 0
            && listen(number, SOMAXCONN) == 0,
        QString::fromUtf8(name));
    return number;
}

// Starts what plays the tool until this process ends, which closes its standard input.
void prepareTool(const QString& script)
{
    static const QByteArray name = "quorbel-test-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    const int reading = listening(name + "-reading");
    const int writing = listening(name + "-writing");
    static auto* const process = new QProcess;  // held, so that it is no leak
    process->setChildProcessModifier([reading, writing] {
        fcntl(reading, F_SETFD, 0);
        fcntl(writing, F_SETFD, 0);
    });
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(u"/usr/bin/perl"_s,
        { QStringLiteral(QUORBEL_PREPARED_TOOL), QString::number(reading), QString::number(writing), script });
    require(process->waitForStarted(), process->errorString());
    close(reading);
    close(writing);
    qputenv("QUORBEL_PREPARED_TOOL", name);
}

// Records the call in a directory of its own (making it also numbers the call, whatever runs at once), then
// does what the answer's files say.
const char* const fakeToolScript = R"perl(#!/usr/bin/perl
use strict; use warnings;
my ($dir) = $0 =~ m{^(.*)/};
my $n = 1;
$n++ until mkdir "$dir/call-$n";
open my $args, '>:raw', "$dir/call-$n/partial" or die;
print $args map { "$_\0" } @ARGV;
close $args;
rename "$dir/call-$n/partial", "$dir/call-$n/arguments";
my $answer = -d "$dir/answer-$n" ? "$dir/answer-$n" : "$dir/answer-always";
if (@ARGV and $ARGV[0] eq '-config') {
    open my $in, '<:raw', $ARGV[1] or die; local $/;
    open my $out, '>:raw', "$dir/call-$n/config" or die;
    printf $out "%o\n%s", (stat $in)[2] & 07777, scalar <$in>;
}
exit 0 unless -d $answer;
$SIG{TERM} = 'IGNORE' if -e "$answer/deaf";
sub content { local $/; open my $f, '<:raw', "$answer/$_[0]" or return ''; my $c = <$f>; $c // '' }
binmode STDOUT; binmode STDERR; $| = 1;
my $noise = content('noise') || 0;
my $block = ('x' x 65535) . "\n";
for (; $noise > 0; $noise -= length $block) { print STDERR substr $block, 0, $noise }
print STDERR content('stderr');
my ($output, $size) = (content('stdout'), content('piece') || 0);
if ($size) {
    for (my $at = 0; $at < length $output; $at += $size) { print substr $output, $at, $size; select undef, undef, undef, 0.001 }
} else {
    print $output;
}
if (-e "$answer/holds") { select undef, undef, undef, 0.01 until -e "$dir/released" }
my $removes = content('removes');
unlink $removes if $removes ne '';
my $signal = content('signal') || 0;
if ($signal) { kill $signal, $$; sleep 10 }
exit(content('exit') || 0);
)perl";

QByteArray bigEndian32(quint32 value)
{
    QByteArray bytes(4, '\0');
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>(value >> (24 - 8 * i));
    return bytes;
}

QByteArray bigEndian16(int value)
{
    return bigEndian32(static_cast<quint32>(value)).mid(2);
}

QByteArray littleEndian(quint32 value, int size)
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes.append(static_cast<char>(value >> (8 * i)));
    return bytes;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    const QByteArray body = type + data;
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : body) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) ? 0xEDB88320 : 0);
    }
    return bigEndian32(static_cast<quint32>(data.size())) + body + bigEndian32(~crc);
}

}  // namespace

QByteArray jpegBytes(int width, int height)
{
    // Huffman tables of one code each: "difference 0" and "end of block", so that every block is the two bits 00.
    const auto table = [](char id) { return QByteArray("\xFF\xC4\x00\x14", 4) + id + '\x01' + QByteArray(16, '\0'); };
    const int blocks = ((width + 7) / 8) * ((height + 7) / 8);
    QByteArray scan((blocks + 3) / 4, '\0');
    if (blocks % 4)
        scan.back() = static_cast<char>(0xFF >> (2 * (blocks % 4)));  // the rest of the last byte is ones
    return QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00", 20)
        + QByteArray("\xFF\xDB\x00\x43\x00", 5) + QByteArray(64, '\x01') + QByteArray("\xFF\xC0\x00\x0B\x08", 5)
        + bigEndian16(height) + bigEndian16(width) + QByteArray("\x01\x01\x11\x00", 4) + table('\x00') + table('\x10')
        + QByteArray("\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00", 10) + scan + QByteArray("\xFF\xD9", 2);
}

QByteArray pngBytes(int width, int height)
{
    const QByteArray rows((width + 1) * height, '\0');  // each row: filter type, then grey pixels
    return QByteArray("\x89PNG\r\n\x1A\n", 8)
        + pngChunk("IHDR",
            bigEndian32(static_cast<quint32>(width)) + bigEndian32(static_cast<quint32>(height))
                + QByteArray("\x08\x00\x00\x00\x00", 5))
        + pngChunk("IDAT", qCompress(rows).mid(4)) + pngChunk("IEND", {});
}

QByteArray tiffBytes(int width, int height)
{
    struct Entry {
        quint32 tag;
        quint32 value;
    };
    const auto w = static_cast<quint32>(width);
    const auto h = static_cast<quint32>(height);
    constexpr quint32 header = 8;
    const QList<Entry> entries{ { 256, w }, { 257, h }, { 258, 8 }, { 259, 1 }, { 262, 1 }, { 273, header }, { 277, 1 },
        { 278, h }, { 279, w * h } };
    const quint32 directoryAt = (header + w * h + 1) & ~1U;
    QByteArray bytes = QByteArray("II*\0", 4) + littleEndian(directoryAt, 4);
    bytes += QByteArray(directoryAt - header, '\0') + littleEndian(static_cast<quint32>(entries.size()), 2);
    for (const auto& entry : entries)
        bytes += littleEndian(entry.tag, 2) + littleEndian(4, 2) + littleEndian(1, 4) + littleEndian(entry.value, 4);
    return bytes + littleEndian(0, 4);
}

QByteArray webpBytes()
{
    // One pixel, lossless.
    return QByteArray::fromHex("524946461a000000574542505650384c0d0000002f00000010071011118888fe0700");
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), path);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), path);
    return file.readAll();
}

PhotoFolder::PhotoFolder()
{
    require(m_directory.isValid(), m_directory.errorString());
}

QUrl PhotoFolder::add(const QString& name) const
{
    const QString extension = QFileInfo(name).suffix().toLower();
    if (extension == QLatin1String("png"))
        return add(name, pngBytes());
    if (extension == QLatin1String("tif") || extension == QLatin1String("tiff"))
        return add(name, tiffBytes());
    return add(name, extension == QLatin1String("webp") ? webpBytes() : jpegBytes());
}

QUrl PhotoFolder::add(const QString& name, const QByteArray& bytes) const
{
    writeFile(path(name), bytes);
    return url(name);
}

QStringList PhotoFolder::names() const
{
    return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

bool isSlowRun()
{
    return qEnvironmentVariableIsSet("QUORBEL_SLOW_TESTS");
}

QStringList realPhotos(const QString& kind, qsizetype most)
{
    const QString root = qEnvironmentVariable("QUORBEL_TEST_PHOTOS");
    const QDir folder(root + u'/' + kind);
    QStringList paths;
    if (!root.isEmpty())
        for (const auto& name : folder.entryList(QDir::Files))
            if (name != u"MANIFEST.tsv"_s)
                paths.append(folder.filePath(name));
    if (isSlowRun() || paths.size() <= most)
        return paths;
    QStringList chosen;
    for (qsizetype i = 0; i < most; ++i)
        chosen.append(paths.at(i * paths.size() / most));
    return chosen;
}

QList<QUrl> copied(const QStringList& paths, const PhotoFolder& folder)
{
    QList<QUrl> copies;
    for (const auto& path : paths)
        copies.append(folder.add(u"%1-%2"_s.arg(copies.size()).arg(QFileInfo(path).fileName()), readFile(path)));
    return copies;
}

TemporaryFilesProbe::TemporaryFilesProbe()
    : m_before(qgetenv("TMPDIR"))
{
    qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
}

TemporaryFilesProbe::~TemporaryFilesProbe()
{
    if (m_before.isEmpty())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", m_before);
}

ExifToolRunner startedTool()
{
    const QString share = qEnvironmentVariable("QUORBEL_TEST_SHARE");
    if (share.isEmpty()) {
        const auto located = ExifToolRunner::locate();
        require(located.has_value(), u"ExifTool not found"_s);
        return *located;
    }
    return { QUrl::fromLocalFile(share + u"/exiftool/exiftool"_s), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
}

ExifToolRunner realTool()
{
    ExifToolRunner tool = startedTool();
    if (isSlowRun())
        return tool;
    // Others, that a test starts, use the same one.
    if (!qEnvironmentVariableIsSet("QUORBEL_PREPARED_TOOL"))
        prepareTool(tool.exiftoolURL.toLocalFile());
    tool.perlURL = QUrl::fromLocalFile(QStringLiteral(QUORBEL_TOOL_CALLER));
    return tool;
}

QByteArray toolForPerl()
{
    const ExifToolRunner tool = realTool();
    return '\'' + tool.perlURL.toLocalFile().toUtf8() + "', '" + tool.exiftoolURL.toLocalFile().toUtf8() + '\'';
}

QByteArray exiftool(const QStringList& arguments)
{
    // What a line of its own cannot say to the tool that stays is left to one that is started for it.
    static const QRegularExpression unlisted(u"^(-config|#.*|\\s.*|)$|\n"_s);
    const bool isListed = arguments.filter(unlisted).isEmpty();
    static auto* const staying = new StayingTool;  // ends with the program
    return isListed ? staying->run(arguments)
                    : run(u"/usr/bin/perl"_s, QStringList{ startedTool().exiftoolURL.toLocalFile() } + arguments);
}

QJsonObject exiftoolValues(const QUrl& file)
{
    const auto json = exiftool({ u"-json"_s, u"-G0"_s, u"-struct"_s, u"-c"_s, u"%+.6f"_s, file.toLocalFile() });
    return QJsonDocument::fromJson(json).array().first().toObject();
}

QMap<QString, QStringList> exiv2Values(const QUrl& file)
{
    // Key and plain value; exiv2's warnings about unknown fields are not of interest. Exit 253: no metadata.
    const QString output =
        QString::fromUtf8(run(u"exiv2"_s, { u"-q"_s, u"-PEIXkv"_s, file.toLocalFile() }, { 0, 253 }));
    static const QRegularExpression line(u"^((?:Exif|Iptc|Xmp)\\.\\S+) *(.*)$"_s);
    QMap<QString, QStringList> values;
    QString key;
    for (const auto& text : output.split(u'\n')) {
        const auto match = line.match(text);
        if (match.hasMatch()) {
            key = match.captured(1);
            values[key].append(match.captured(2));
        } else if (!key.isEmpty() && !text.isEmpty()) {
            values[key].last() += u'\n' + text;  // a value of several lines
        }
    }
    return values;
}

QByteArray toolJson(const QList<QJsonObject>& objects)
{
    QList<QByteArray> printed;
    for (QJsonObject object : objects) {
        const auto source = object.take(u"SourceFile"_s);
        QList<QByteArray> members;
        const auto add = [&members](const QString& key, const QJsonValue& value) {
            const auto pair = QJsonDocument(QJsonObject{ { key, value } }).toJson(QJsonDocument::Compact);
            members.append("  " + pair.mid(1, pair.size() - 2));
        };
        add(u"SourceFile"_s, source);
        members.last().replace("\":", "\": ");
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
            add(it.key(), it.value());
        printed.append("{\n" + members.join(",\n") + "\n}");
    }
    return '[' + printed.join(",\n") + "]\n";
}

FakeTool::FakeTool()
{
    require(m_directory.isValid(), m_directory.errorString());
    writeFile(scriptPath(), fakeToolScript);
}

void FakeTool::answer(int run, const Answer& answer)
{
    store(u"answer-%1"_s.arg(calls().size() + run), answer);
}

void FakeTool::answerAlways(const Answer& answer)
{
    store(u"answer-always"_s, answer);
}

void FakeTool::release()
{
    writeFile(m_directory.filePath(u"released"_s), {});
}

ExifToolRunner FakeTool::runner() const
{
    return { QUrl::fromLocalFile(scriptPath()), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
}

QList<QStringList> FakeTool::calls() const
{
    QList<QStringList> calls;
    for (int n = 1;; ++n) {
        const QString path = m_directory.filePath(u"call-%1/arguments"_s.arg(n));
        if (!QFileInfo::exists(path))
            return calls;
        auto arguments = QString::fromUtf8(readFile(path)).split(QChar(u'\0'));
        arguments.removeLast();  // behind the last separator
        calls.append(arguments);
    }
}

QByteArray FakeTool::config(int run) const
{
    const QString path = m_directory.filePath(u"call-%1/config"_s.arg(run));
    return QFileInfo::exists(path) ? readFile(path) : QByteArray();
}

void FakeTool::store(const QString& name, const Answer& answer)
{
    const QString directory = m_directory.filePath(name) + u'/';
    require(QDir().mkpath(directory), directory);
    writeFile(directory + u"stdout"_s, answer.standardOutput);
    writeFile(directory + u"stderr"_s, answer.standardError);
    writeFile(directory + u"exit"_s, QByteArray::number(answer.exitCode));
    writeFile(directory + u"signal"_s, QByteArray::number(answer.signal));
    writeFile(directory + u"noise"_s, QByteArray::number(answer.noiseBytes));
    writeFile(directory + u"piece"_s, QByteArray::number(answer.pieceSize));
    writeFile(directory + u"removes"_s, QFile::encodeName(answer.removes));
    if (answer.holds)
        writeFile(directory + u"holds"_s, {});
    if (answer.deaf)
        writeFile(directory + u"deaf"_s, {});
}

}  // namespace Quorbel::Test
