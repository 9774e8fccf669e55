// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/busprobe.h"
#include "platform/toolkitguard.h"

#include <QElapsedTimer>

namespace morrowleaf {

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

    BusProbe bus_;
    QElapsedTimer asked_;
};

} // namespace morrowleaf
