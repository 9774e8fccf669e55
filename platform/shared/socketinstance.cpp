// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/socketinstance.h"

#include <QLocalSocket>
#include <QThread>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int attempts = 20;
constexpr int pause = 100;              // milliseconds between attempts
constexpr int patience = 1000;          // milliseconds for one attempt to hand over
constexpr qint64 longestRequest = 4096; // bytes

} // namespace

SocketInstance::SocketInstance(const QString& folder)
    : socket_(folder + "/morrowleaf.socket"_L1)
    , lock_(folder + "/morrowleaf.lock"_L1) {
    lock_.setStaleLockTime(0); // never treat a lock as stale because of its age alone
    connect(&server_, &QLocalServer::newConnection, this, &SocketInstance::receive);
}

bool SocketInstance::claim(const LaunchRequest& request) {
    for (int i = 0; i < attempts; ++i) {
        if (lock_.tryLock(0)) {
            listen();
            return true;
        }
        if (lock_.error() != QLockFile::LockFailedError) {
            return true;
        }
        // The first instance may hold the lock without listening yet.
        if (handOver(request)) {
            return false;
        }
        QThread::msleep(pause);
    }
    return false;
}

void SocketInstance::listen() {
    // An existing socket was left behind, because this process has the lock.
    QLocalServer::removeServer(socket_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(socket_);
}

void SocketInstance::receive() {
    while (auto* client = server_.nextPendingConnection()) {
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        client->setReadBufferSize(longestRequest);
        const auto read = [this, client] {
            if (!client->canReadLine()) {
                return;
            }
            const QStringList words =
                QString::fromUtf8(client->readLine(longestRequest)).trimmed().split(u' ');
            client->disconnectFromServer();
            emit requested({.action = words.value(0), .activationToken = words.value(1)});
        };
        connect(client, &QLocalSocket::readyRead, this, read);
        read();
    }
}

bool SocketInstance::handOver(const LaunchRequest& request) const {
    QLocalSocket socket;
    socket.connectToServer(socket_);
    if (!socket.waitForConnected(patience)) {
        return false;
    }
    socket.write((request.action + u' ' + request.activationToken + u'\n').toUtf8());
    return socket.waitForBytesWritten(patience) || socket.bytesToWrite() == 0;
}

} // namespace morrowleaf
