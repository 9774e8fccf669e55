// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/system.h"

#include <QStandardPaths>

#include <ctime>

#include <malloc/malloc.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

double uptime() {
    // On this system it also runs while the machine sleeps.
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void releaseFreeMemory() {
    malloc_zone_pressure_relief(nullptr, 0);
}

// Beside the folder of the photos, in that for application support.
QString settingsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Morrowleaf"_s;
}

QString stateFolder() {
    return settingsFolder();
}

} // namespace morrowleaf
