// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QLocalServer>
#include <QLockFile>

class QLocalSocket;

namespace morrowleaf {

// One instance by a lock and a socket in `folder`. Both survive a killed
// instance without harm.
class SocketInstance : public SingleInstance {
    Q_OBJECT

public:
    explicit SocketInstance(const QString& folder);

    bool claim(const LaunchRequest& request) override;

private:
    void listen();
    void receive();
    bool handOver(const LaunchRequest& request) const;

    QString socket_;
    QLockFile lock_;
    QLocalServer server_;
};

} // namespace morrowleaf
