#include "gui/app/SingleInstance.h"

#include <QDataStream>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>

namespace tavrin {

namespace {

// A message is a QDataStream of the path list; the sender closes its end once written.
constexpr QDataStream::Version kStreamVersion = QDataStream::Qt_6_4;

QByteArray encodePaths(const QStringList& paths)
{
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream.setVersion(kStreamVersion);
    stream << paths;
    return message;
}

} // namespace

QString SingleInstance::defaultServerName()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString name = QStringLiteral("com.palisadesoft.Tavrin");
    return runtime.isEmpty() ? name : QDir(runtime).filePath(name);
}

SingleInstance::SingleInstance(const QString& serverName, QObject* parent)
    : QObject(parent)
    , m_serverName(serverName)
{
}

bool SingleInstance::forwardToRunningInstance(const QStringList& paths, int timeoutMilliseconds) const
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName);
    if (!socket.waitForConnected(timeoutMilliseconds))
        return false;
    socket.write(encodePaths(paths));
    if (!socket.waitForBytesWritten(timeoutMilliseconds))
        return false;
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState
        || socket.waitForDisconnected(timeoutMilliseconds);
}

bool SingleInstance::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnection);
    if (m_server->listen(m_serverName))
        return true;
    // Nobody answered before this call, so the socket is a leftover.
    QLocalServer::removeServer(m_serverName);
    return m_server->listen(m_serverName);
}

void SingleInstance::acceptConnection()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            readMessage(socket);
            socket->deleteLater();
        });
    }
}

// The whole message is there once the sender has closed its end.
void SingleInstance::readMessage(QLocalSocket* socket)
{
    QDataStream stream(socket->readAll());
    stream.setVersion(kStreamVersion);
    QStringList paths;
    stream >> paths;
    if (stream.status() == QDataStream::Ok)
        emit pathsReceived(paths);
}

} // namespace tavrin
