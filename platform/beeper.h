// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// The system's alert sound.
class Beeper {
public:
    virtual ~Beeper() = default;
    Beeper(const Beeper&) = delete;
    Beeper& operator=(const Beeper&) = delete;

    virtual void beep() = 0;

protected:
    Beeper() = default;
};

} // namespace morrowleaf
