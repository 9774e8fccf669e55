// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/busprobe.h"
#include "platform/toolkitguard.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <optional>

namespace morrowleaf {

// How long the bus may take to answer if the program's own first steps have taken `elapsed`:
// where they take long the machine is busy, and the bus late as well. Both in milliseconds.
int patienceAfter(int elapsed);

// Qt, its themes and its input methods connect to the session bus on the main thread, with
// the application object or with the first window. If the bus does not answer in time, the
// program does without them: until it is started again it has the plain theme, no input
// method and no screen reader. Everything else follows when the bus answers.
class BusToolkitGuard final : public ToolkitGuard {
public:
    BusToolkitGuard();

    void prepareApplication() override;
    void prepareFirstWindow() override;

private:
    bool isSilentAfter(int milliseconds);

    std::optional<BusProbe> bus_; // empty once it has answered
    QElapsedTimer asked_;
    QByteArray desktop_; // what the toolkit must not know; empty if it may
};

} // namespace morrowleaf
