// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/unixsignals.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace morrowleaf {

namespace {

// Global, because a signal handler can access nothing else.
std::array<int, 2> pipeEnds{-1, -1};

constexpr unsigned longestEnd = 5; // seconds

// Called if the main thread does not end the program, because a library waits there.
void endProcess(int /*signal*/) {
    _exit(0);
}

void writeToPipe(int /*signal*/, siginfo_t* info, void* /*context*/) {
    // GLib, which a theme may bring into the process, raises SIGTERM when the session bus dies.
    if (info->si_pid == getpid()) {
        return;
    }
    alarm(longestEnd);
    const char byte = 0;
    // A failure cannot be handled here; if the pipe is full, it will be read anyway.
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
}

bool openPipe() {
    if (pipe(pipeEnds.data()) != 0) {
        return false;
    }
    for (const int end : pipeEnds) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

} // namespace

UnixSignals::UnixSignals() {
    if (pipeEnds[0] < 0 && !openPipe()) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(pipeEnds[0], &byte, 1) > 0) {
        }
        emit quitRequested();
    });
    struct sigaction action {};
    action.sa_sigaction = writeToPipe;
    action.sa_flags = SA_RESTART | SA_SIGINFO;
    struct sigaction end {};
    end.sa_handler = endProcess;
    sigaction(SIGALRM, &end, nullptr);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

} // namespace morrowleaf
