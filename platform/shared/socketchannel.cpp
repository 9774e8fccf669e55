// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/socketchannel.h"

#include <QStringList>

#include <chrono>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto greeting = "ready\n";
constexpr auto retryTime = 100ms;       // the instance may not listen yet
constexpr int handOverTime = 500;       // milliseconds for the kernel to take a request
constexpr auto longestSilence = 5s;     // of a client
constexpr int mostClients = 64;         // that have not said anything yet
constexpr qint64 longestRequest = 4096; // bytes

} // namespace

SocketChannel::SocketChannel(const QString& folder)
    : path_(folder + "/morrowleaf.socket"_L1) {
    connect(&server_, &QLocalServer::newConnection, this, &SocketChannel::receive);
    retry_.setSingleShot(true);
    retry_.setInterval(retryTime);
    connect(&retry_, &QTimer::timeout, this, [this] { socket_.connectToServer(path_); });
    connect(&socket_, &QLocalSocket::errorOccurred, &retry_, qOverload<>(&QTimer::start));
    connect(&socket_, &QLocalSocket::readyRead, this, [this] {
        if (socket_.canReadLine() && socket_.readLine() == greeting) {
            emit answered();
        }
    });
}

SocketChannel::~SocketChannel() {
    for (QLocalSocket* client : std::as_const(clients_)) {
        client->disconnect(this);
    }
    socket_.disconnect();
}

void SocketChannel::serve() {
    retry_.stop();
    socket_.disconnect();
    socket_.abort();
    QLocalServer::removeServer(path_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(path_);
}

void SocketChannel::receive() {
    while (QLocalSocket* client = server_.nextPendingConnection()) {
        greet(*client);
        if (clients_.size() > mostClients) {
            clients_.constFirst()->abort();
        }
    }
}

void SocketChannel::greet(QLocalSocket& client) {
    clients_.append(&client);
    connect(&client, &QLocalSocket::disconnected, this, [this, &client] {
        clients_.removeOne(&client);
        client.deleteLater();
    });
    client.setReadBufferSize(longestRequest);
    const auto read = [this, &client] {
        if (!client.canReadLine()) {
            return;
        }
        const QStringList words =
            QString::fromUtf8(client.readLine(longestRequest)).trimmed().split(u' ');
        client.disconnectFromServer();
        emit requested({.action = words.value(0), .activationToken = words.value(1)});
    };
    connect(&client, &QLocalSocket::readyRead, this, read);
    QTimer::singleShot(longestSilence, &client, &QLocalSocket::abort);
    // A launch that has lost patience has sent its request and is gone.
    client.waitForReadyRead(0);
    read();
    if (clients_.contains(&client)) {
        client.write(greeting);
    }
}

void SocketChannel::reach() {
    socket_.connectToServer(path_);
}

bool SocketChannel::send(const LaunchRequest& request) {
    if (socket_.state() != QLocalSocket::ConnectedState) {
        return false;
    }
    socket_.write((request.action + u' ' + request.activationToken + u'\n').toUtf8());
    return socket_.waitForBytesWritten(handOverTime) || socket_.bytesToWrite() == 0;
}

} // namespace morrowleaf
