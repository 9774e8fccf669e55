// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/system.h"

#include <QDir>
#include <QStandardPaths>

#include <ctime>

#include <malloc.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

double uptime() {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void releaseFreeMemory() {
    malloc_trim(0);
}

QString settingsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/morrowleaf"_s;
}

QString stateFolder() {
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return (folder.startsWith(u'/') ? folder : QDir::homePath() + u"/.local/state"_s) +
           u"/morrowleaf"_s;
}

} // namespace morrowleaf
