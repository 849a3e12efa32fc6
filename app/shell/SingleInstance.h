// One running program per user and display: a second start hands its files to the first and ends.
// Thread: the main thread. Knows nothing of the model: what arrives is handed to a function.
#pragma once

#include <QByteArray>
#include <QList>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QUrl>

#include <functional>

namespace Quorbel {

/// What a second start hands over.
struct HandOver {
    QList<QUrl> urls{};
    QByteArray activationToken{};  ///< what the desktop gave the start, so that the window may come to the front
    bool operator==(const HandOver&) const = default;
};

class SingleInstance final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SingleInstance)

public:
    /// `socketPath`: absolute, in a folder of the user's alone.
    explicit SingleInstance(const QString& socketPath, QObject* parent = nullptr);

    /// Hands over to the program that listens there; false when there is none, or it does not answer within three
    /// seconds. Blocks that long at most; runs no event loop.
    bool handOver(const HandOver& what) const;
    /// Becomes the one that listens; a socket that a crashed program left behind is taken over. False when another
    /// one listens or the folder cannot be written: the program then simply runs without listening.
    bool listen(std::function<void(const HandOver&)> received);

    /// The socket of this user and display, in the user's runtime folder.
    static QString defaultSocketPath();

private:
    void accept();
    void read(QLocalSocket* socket);

    QString m_path;
    QLocalServer m_server;
    std::function<void(const HandOver&)> m_received{};
};

}  // namespace Quorbel
