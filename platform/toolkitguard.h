// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Keeps the toolkit from services for which it would wait on the main thread, if they do
// not answer. Asks them when it is created. Main thread.
class ToolkitGuard {
public:
    ToolkitGuard() = default;
    virtual ~ToolkitGuard() = default;
    ToolkitGuard(const ToolkitGuard&) = delete;
    ToolkitGuard& operator=(const ToolkitGuard&) = delete;

    // Decides on theme and input method. Call just before the application object is
    // created; returns at most 15 ms, or on a busy machine 250 ms, after that question.
    virtual void prepareApplication() {}
    // Decides on accessibility. Call just before the first window is shown.
    virtual void prepareFirstWindow() {}
};

} // namespace morrowleaf
