// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

namespace morrowleaf {

enum class TappedInput {
    ButtonsAndKeys, // the left and the right mouse button, and keys other than modifiers
    EscapeKey,
};

// Destroying it ends the calls, but must not happen within one.
class InputTap {
public:
    virtual ~InputTap() = default;
    InputTap(const InputTap&) = delete;
    InputTap& operator=(const InputTap&) = delete;

protected:
    InputTap() = default;
};

// Gives the program its input before the system's menus get it. Main thread.
class InputTaps {
public:
    virtual ~InputTaps() = default;
    InputTaps(const InputTaps&) = delete;
    InputTaps& operator=(const InputTaps&) = delete;

    // Calls `take` for this input of the program. It returns whether the event ends there.
    // Returns null if the system has no such means; Qt's events are all there is then.
    virtual std::unique_ptr<InputTap> tap(TappedInput input, std::function<bool()> take) = 0;

protected:
    InputTaps() = default;
};

} // namespace morrowleaf
