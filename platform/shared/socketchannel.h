// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/shared/lockedinstance.h"

#include <QList>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

#include <chrono>

namespace morrowleaf {

// Requests through a local socket in a folder. The instance greets whoever connects, and
// says that it has accepted what it has read.

// Drops a client that says nothing for a while, or the oldest one when there are many.
class SocketListener : public RequestListener {
    Q_OBJECT

public:
    explicit SocketListener(const QString& folder,
                            std::chrono::milliseconds longestSilence = std::chrono::seconds(5));
    ~SocketListener() override;

    // Replaces a socket that was left behind.
    void listen() override;

private:
    void receive();
    void greet(QLocalSocket& client);

    QString path_;
    std::chrono::milliseconds longestSilence_;
    QLocalServer server_;
    QList<QLocalSocket*> clients_; // that have not said anything yet, oldest first
};

class SocketSender : public RequestSender {
    Q_OBJECT

public:
    explicit SocketSender(const QString& folder);
    ~SocketSender() override;

    void reach() override;
    bool send(const LaunchRequest& request) override;

private:
    void read();

    QString path_;
    QLocalSocket socket_;
    QTimer retry_;
};

} // namespace morrowleaf
