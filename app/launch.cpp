// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/launch.h"

namespace morrowleaf {

Mode modeFor(const QStringList& arguments) {
    if (arguments.contains("--selftest")) {
        return Mode::SelfTest;
    }
    if (arguments.contains("--register-login")) {
        return Mode::RegisterLogin;
    }
    return Mode::Desktop;
}

QString registerLogin(LoginItem& item) {
    if (const auto error = item.registerItem()) {
        return "login item failed: " + *error;
    }
    return item.status() == LoginItem::Status::Enabled
               ? QString("login item: enabled")
               : QString("login item: registered, pending approval");
}

} // namespace morrowleaf
