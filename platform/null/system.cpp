// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/system.h"

#include "platform/network.h"

#include <QStandardPaths>

#include <chrono>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

double uptime() {
    const std::chrono::duration<double> since = std::chrono::steady_clock::now().time_since_epoch();
    return since.count();
}

void releaseFreeMemory() {}

QString settingsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/morrowleaf"_s;
}

QString stateFolder() {
    return settingsFolder();
}

QByteArray certificateFolder() {
    return {};
}

} // namespace morrowleaf
