// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/bustoolkitguard.h"

#include <QtGlobal>

#include <algorithm>

namespace morrowleaf {

namespace {

// A bus answers within a millisecond or two, and somewhat later at a busy login. The first
// window is ready about 50 ms after the question, so half of the second time is no delay.
constexpr int patienceForTheme = 40;         // milliseconds
constexpr int patienceForAccessibility = 90; // milliseconds

} // namespace

BusToolkitGuard::BusToolkitGuard()
    : bus_(busAddress(QDBusConnection::SessionBus)) {
    asked_.start();
}

void BusToolkitGuard::prepareApplication() {
    if (isSilentAfter(patienceForTheme)) {
        qputenv("XDG_CURRENT_DESKTOP", "unknown");
        qunsetenv("QT_QPA_PLATFORMTHEME");
        qunsetenv("QT_IM_MODULE");
    }
}

void BusToolkitGuard::prepareFirstWindow() {
    if (isSilentAfter(patienceForAccessibility)) {
        qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
    }
}

bool BusToolkitGuard::isSilentAfter(int milliseconds) {
    const int left = std::max(milliseconds - static_cast<int>(asked_.elapsed()), 0);
    return bus_.wait(left) == BusProbe::Answer::None;
}

} // namespace morrowleaf
