// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/socketchannel.h"

#include <chrono>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto greeting = "ready\n";
constexpr auto acceptance = "accepted\n";
constexpr auto retryTime = 100ms;       // the instance may not listen yet
constexpr int mostClients = 64;         // that have not said anything yet
constexpr qint64 longestRequest = 4096; // bytes

QString socketPath(const QString& folder) {
    return folder + "/morrowleaf.socket"_L1;
}

} // namespace

SocketListener::SocketListener(const QString& folder, std::chrono::milliseconds longestSilence)
    : path_(socketPath(folder))
    , longestSilence_(longestSilence) {
    connect(&server_, &QLocalServer::newConnection, this, &SocketListener::receive);
}

SocketListener::~SocketListener() {
    const auto clients = server_.findChildren<QLocalSocket*>();
    for (QLocalSocket* client : clients) {
        client->disconnect(this);
    }
}

void SocketListener::listen() {
    QLocalServer::removeServer(path_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(path_);
}

void SocketListener::receive() {
    while (QLocalSocket* client = server_.nextPendingConnection()) {
        greet(*client);
        if (clients_.size() > mostClients) {
            clients_.constFirst()->abort();
        }
    }
}

void SocketListener::greet(QLocalSocket& client) {
    clients_.append(&client);
    connect(&client, &QLocalSocket::disconnected, this, [this, &client] {
        clients_.removeOne(&client);
        client.deleteLater();
    });
    client.setReadBufferSize(longestRequest);
    const auto read = [this, &client] {
        if (!clients_.contains(&client) || !client.canReadLine()) {
            return;
        }
        clients_.removeOne(&client);
        const QString line = QString::fromUtf8(client.readLine(longestRequest)).trimmed();
        emit requested(
            {.action = line.section(u' ', 0, 0), .activationToken = line.section(u' ', 1)});
        QTimer::singleShot(acceptanceDelay, &client, [&client] {
            client.write(acceptance);
            client.disconnectFromServer();
        });
    };
    connect(&client, &QLocalSocket::readyRead, this, read);
    QTimer::singleShot(longestSilence_, &client, &QLocalSocket::abort);
    // A launch that has lost patience has sent its request and is gone.
    client.waitForReadyRead(0);
    read();
    if (clients_.contains(&client)) {
        client.write(greeting);
    }
}

SocketSender::SocketSender(const QString& folder)
    : path_(socketPath(folder)) {
    retry_.setSingleShot(true);
    retry_.setInterval(retryTime);
    connect(&retry_, &QTimer::timeout, this, &SocketSender::reach);
    connect(&socket_, &QLocalSocket::readyRead, this, &SocketSender::read);
    // Queued, because it can be emitted while connecting or writing.
    connect(
        &socket_, &QLocalSocket::errorOccurred, this,
        [this] {
            retry_.start();
            emit failed();
        },
        Qt::QueuedConnection);
}

SocketSender::~SocketSender() {
    socket_.disconnect();
}

void SocketSender::reach() {
    socket_.connectToServer(path_);
}

void SocketSender::read() {
    while (socket_.canReadLine()) {
        const QByteArray line = socket_.readLine();
        if (line == greeting) {
            emit answered();
        } else if (line == acceptance) {
            emit accepted();
        }
    }
}

bool SocketSender::send(const LaunchRequest& request) {
    if (socket_.state() != QLocalSocket::ConnectedState) {
        return false;
    }
    socket_.write((request.action + u' ' + request.activationToken + u'\n').toUtf8());
    return socket_.flush();
}

} // namespace morrowleaf
