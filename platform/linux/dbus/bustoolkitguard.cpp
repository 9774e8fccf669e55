// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/bustoolkitguard.h"

#include <QtGlobal>

#include <algorithm>

namespace morrowleaf {

namespace {

// In milliseconds. A bus answers within a few, and the start takes ten times as long as the
// first steps, so that the least patience and the factor cost at most half a start.
constexpr int leastPatience = 15;
constexpr int mostPatience = 250;
constexpr int patiencePerElapsed = 5;
constexpr auto desktopVariable = "XDG_CURRENT_DESKTOP";

} // namespace

int patienceAfter(int elapsed) {
    return std::clamp(patiencePerElapsed * elapsed, leastPatience, mostPatience);
}

BusToolkitGuard::BusToolkitGuard()
    : bus_(std::in_place, busAddress(QDBusConnection::SessionBus)) {
    asked_.start();
}

void BusToolkitGuard::prepareApplication() {
    const int elapsed = static_cast<int>(asked_.elapsed());
    if (isSilentAfter(patienceAfter(elapsed) - elapsed)) {
        desktop_ = qgetenv(desktopVariable);
        qputenv(desktopVariable, "unknown");
        qunsetenv("QT_QPA_PLATFORMTHEME");
        qunsetenv("QT_IM_MODULE");
    }
}

void BusToolkitGuard::prepareFirstWindow() {
    if (isSilentAfter(0)) {
        qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
    }
    bus_.reset();
    // The toolkit has chosen its theme; the tray's symbol and other programs follow the
    // desktop.
    if (!desktop_.isEmpty()) {
        qputenv(desktopVariable, desktop_);
    }
}

bool BusToolkitGuard::isSilentAfter(int milliseconds) {
    if (!bus_) {
        return false;
    }
    const bool isSilent = bus_->wait(std::max(milliseconds, 0)) == BusProbe::Answer::None;
    if (!isSilent) {
        bus_.reset(); // the bus reports clients that do not go on
    }
    return isSilent;
}

} // namespace morrowleaf
