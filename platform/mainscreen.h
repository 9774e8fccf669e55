// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QScreen;

namespace morrowleaf {

// Finds the screen on which the user is.
class MainScreen {
public:
    virtual ~MainScreen() = default;
    MainScreen(const MainScreen&) = delete;
    MainScreen& operator=(const MainScreen&) = delete;

    // The screen that holds the window with keyboard focus, or the nearest
    // guess; null where there is no screen at all.
    virtual QScreen* current() const = 0;

protected:
    MainScreen() = default;
};

} // namespace morrowleaf
