#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QLocalServer;
class QLocalSocket;

namespace tavrin {

// One window per user session: the first `tavrin` listens on a local socket, and a later
// `tavrin FILE...` hands its paths to it and ends, as a file manager expects when it opens
// several files with the application one after the other.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    // The socket of this user's session: in the runtime folder ($XDG_RUNTIME_DIR) when there
    // is one, so that each user and each session has its own.
    static QString defaultServerName();

    explicit SingleInstance(const QString& serverName, QObject* parent = nullptr);

    // Gives the paths to the instance already running; false when there is none (or it did
    // not take them in time), and this process should open its own window.
    bool forwardToRunningInstance(const QStringList& paths, int timeoutMilliseconds = 2000) const;

    // Starts taking the paths of later launches. A socket left behind by an instance that
    // crashed is removed first.
    bool listen();

signals:
    // Paths from a later launch; empty when it was started without any (the window should
    // come to the front).
    void pathsReceived(const QStringList& paths);

private:
    void acceptConnection();
    void readMessage(QLocalSocket* socket);

    QString m_serverName;
    QLocalServer* m_server = nullptr;
};

} // namespace tavrin
