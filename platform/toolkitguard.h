// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Keeps the toolkit from services for which it would wait on the main thread, if they do
// not answer. Asks them when it is created; all times count from then. Main thread.
class ToolkitGuard {
public:
    ToolkitGuard() = default;
    virtual ~ToolkitGuard() = default;
    ToolkitGuard(const ToolkitGuard&) = delete;
    ToolkitGuard& operator=(const ToolkitGuard&) = delete;

    // Decides on theme and input method. Call just before the application object is
    // created; returns after 40 ms at the latest.
    virtual void prepareApplication() {}
    // Decides on accessibility. Call just before the first window is shown; returns after
    // 90 ms at the latest.
    virtual void prepareFirstWindow() {}
};

} // namespace morrowleaf
