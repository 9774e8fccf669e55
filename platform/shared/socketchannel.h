// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/shared/lockedinstance.h"

#include <QList>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

namespace morrowleaf {

// Passes requests through a local socket in `folder`. The instance greets whoever
// connects, and drops a client that says nothing, or the oldest one when there are many.
class SocketChannel : public RequestChannel {
    Q_OBJECT

public:
    explicit SocketChannel(const QString& folder);
    ~SocketChannel() override;

    // Replaces a socket that was left behind, so only the holder of the lock may call it.
    void serve() override;
    void reach() override;
    bool send(const LaunchRequest& request) override;

private:
    void receive();
    void greet(QLocalSocket& client);

    QString path_;
    QLocalServer server_;
    QList<QLocalSocket*> clients_; // that have not said anything yet, oldest first
    QLocalSocket socket_;          // of a later launch
    QTimer retry_;
};

} // namespace morrowleaf
