#include "app/shell/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QLocalSocket>
#include <QStandardPaths>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// One line of JSON there, one line back.
constexpr auto urlsKey = "urls";
constexpr auto tokenKey = "activationToken";
const QByteArray answer = QByteArrayLiteral("ok\n");

constexpr int connectTimeout = 500;  // milliseconds
constexpr int answerTimeout = 3'000;  // milliseconds; a program that is busy for longer counts as hung
constexpr qint64 longestMessage = 16LL * 1024 * 1024;  // bytes; more than any command line holds

QByteArray encoded(const HandOver& what)
{
    QJsonArray urls;
    for (const QUrl& url : what.urls)
        urls.append(url.toString(QUrl::FullyEncoded));
    const QJsonObject message{ { QLatin1String(urlsKey), urls },
        { QLatin1String(tokenKey), QString::fromUtf8(what.activationToken) } };
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

HandOver decoded(const QByteArray& line)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    HandOver what;
    const QJsonArray urls = message.value(QLatin1String(urlsKey)).toArray();
    for (const auto& url : urls)
        what.urls.append(QUrl(url.toString()));
    what.activationToken = message.value(QLatin1String(tokenKey)).toString().toUtf8();
    return what;
}

}  // namespace

SingleInstance::SingleInstance(const QString& socketPath, QObject* parent)
    : QObject(parent)
    , m_path(socketPath)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
}

QString SingleInstance::defaultSocketPath()
{
    // Two displays are two desks: a program on one of them is no use to somebody who sits at the other.
    const QByteArray display =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ? qgetenv("WAYLAND_DISPLAY") : qgetenv("DISPLAY");
    const auto mark = QCryptographicHash::hash(display, QCryptographicHash::Sha256).toHex().left(8);
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    return folder.filePath(u"quorbel-%1.socket"_s.arg(QString::fromLatin1(mark)));
}

bool SingleInstance::handOver(const HandOver& what) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(connectTimeout))
        return false;
    socket.write(encoded(what));
    while (socket.bytesToWrite() > 0)
        if (!socket.waitForBytesWritten(answerTimeout))
            return false;
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(answerTimeout))
            return false;
    return socket.readLine() == answer;
}

bool SingleInstance::listen(std::function<void(const HandOver&)> received)
{
    m_received = std::move(received);
    // Two programs that start at the same moment must not both find the socket abandoned.
    QLockFile lock(m_path + u".lock"_s);
    if (!lock.tryLock(connectTimeout))
        return false;
    // Asked first: a server with access options takes a path over even while another one listens there.
    QLocalSocket probe;
    probe.connectToServer(m_path);
    if (probe.waitForConnected(connectTimeout))
        return false;
    QLocalServer::removeServer(m_path);
    return m_server.listen(m_path);
}

void SingleInstance::accept()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        read(socket);
    }
}

void SingleInstance::read(QLocalSocket* socket)
{
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > longestMessage)
            socket->abort();
        return;
    }
    const HandOver what = decoded(socket->readLine());
    socket->write(answer);
    socket->disconnectFromServer();
    m_received(what);
}

}  // namespace Quorbel
