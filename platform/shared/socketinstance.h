// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QLocalServer>
#include <QLockFile>

class QLocalSocket;

namespace morrowleaf {

// The instance is the process that holds a lock in `folder`; later launches reach it
// through a socket beside the lock. A lock or a socket that a killed instance leaves
// behind does not affect the next one.
class SocketInstance : public SingleInstance {
    Q_OBJECT

public:
    explicit SocketInstance(const QString& folder);

    bool claim(const LaunchRequest& request) override;

private:
    void listen();
    void receive();
    [[nodiscard]] bool handOver(const LaunchRequest& request) const;

    QString socket_;
    QLockFile lock_;
    QLocalServer server_;
};

} // namespace morrowleaf
