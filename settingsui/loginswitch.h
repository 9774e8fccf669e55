// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsui/switch.h"

#include <functional>

namespace morrowleaf {

class LoginItem;

// Switches the start at login. A refused change flips back to what the system
// says, with one beep and without a second change.
class LoginSwitch : public Switch {
    Q_OBJECT

public:
    LoginSwitch(LoginItem& item, std::function<void()> beep, QWidget* parent = nullptr);

private:
    void change(bool on);

    LoginItem& item_;
    std::function<void()> beep_;
};

} // namespace morrowleaf
