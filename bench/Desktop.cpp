#include "bench/Desktop.h"

#include <QFile>
#include <QThread>
#include <QtEndian>

namespace Quorbel::Bench {

using namespace Qt::StringLiterals;

namespace {

constexpr auto wholeScreen = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc"><applications><application class="*"><decor>no</decor>
<maximized>yes</maximized></application></applications></openbox_config>
)";

// The address that a server says in its first line; empty when there is no such server.
QString started(QProcess& server, const QString& program, const QStringList& arguments)
{
    server.start(program, arguments);
    if (server.waitForStarted() && server.waitForReadyRead(10'000))
        return QString::fromLatin1(server.readLine().trimmed());
    return {};
}

}  // namespace

Desktop::Desktop()
{
    const QString number = started(m_server, u"Xvfb"_s,
        { u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"%1x%2x24"_s.arg(size.width()).arg(size.height()),
            u"-fbdir"_s, m_work.path() });
    m_busAddress = started(m_bus, u"dbus-daemon"_s, { u"--session"_s, u"--nofork"_s, u"--print-address"_s });
    m_display = u':' + number;
    const QString settings = m_work.filePath(u"openbox.xml"_s);
    QFile file(settings);
    if (number.isEmpty() || m_busAddress.isEmpty() || !file.open(QIODevice::WriteOnly))
        return;
    file.write(wholeScreen);
    file.close();
    m_manager.setProcessEnvironment(environment(m_work.path()));
    m_manager.start(u"openbox"_s, { u"--config-file"_s, settings });
    m_isRunning = m_manager.waitForStarted();
    QThread::sleep(1);
}

Desktop::~Desktop()
{
    for (QProcess* process : { &m_manager, &m_bus, &m_server }) {
        process->terminate();
        process->waitForFinished();
    }
}

QProcessEnvironment Desktop::environment(const QString& home) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& variable :
        { u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_STATE_HOME"_s })
        environment.remove(variable);
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_RUNTIME_DIR"_s, home);
    environment.insert(u"DISPLAY"_s, m_display);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_busAddress);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    return environment;
}

// The server keeps its picture in a file: a header of 32-bit numbers, big end first, a table of colors, the pixels.
QImage Desktop::picture() const
{
    QFile file(m_work.filePath(u"Xvfb_screen0"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    const auto number = [&bytes](int index) { return qFromBigEndian<quint32>(bytes.constData() + 4 * index); };
    const qsizetype start = number(0) + 12 * static_cast<qsizetype>(number(19));
    const qsizetype lineBytes = number(12);
    if (bytes.size() < start + lineBytes * size.height())
        return {};
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()) + start, size.width(), size.height(), lineBytes,
        QImage::Format_RGB32)
        .copy();
}

}  // namespace Quorbel::Bench
