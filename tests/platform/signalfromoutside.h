// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace morrowleaf {

// Has another process send `signal` to this one, as a shell or a session manager would.
inline void signalFromOutside(int signal) {
    const pid_t receiver = ::getpid();
    const pid_t sender = ::fork();
    if (sender == 0) {
        ::kill(receiver, signal);
        ::_exit(0);
    }
    ::waitpid(sender, nullptr, 0);
}

} // namespace morrowleaf
