// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// What the process that has started this one has left in the environment. Main thread.

enum class Starter {
    User,
    Bus, // a message bus, which delivers a request
};

// Call once, before other processes are started: they are not started by the bus.
[[nodiscard]] Starter takeStarter();

// Lets a window of this launch come to the front; may be empty.
[[nodiscard]] QString activationToken();
// Has the toolkit apply a token to the next window that it shows.
void setActivationToken(const QString& token);

} // namespace morrowleaf
