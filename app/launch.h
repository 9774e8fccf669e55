// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"

#include <QStringList>

namespace morrowleaf {

enum class Mode { SelfTest, RegisterLogin, Desktop };

// The mode that the arguments ask for; those that are unknown count nothing.
Mode modeFor(const QStringList& arguments);

// Registers the login item; the line that tells how it went.
QString registerLogin(LoginItem& item);

} // namespace morrowleaf
