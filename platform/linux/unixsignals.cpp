// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/unixsignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace morrowleaf {

namespace {

// A signal handler can reach nothing but what is global.
std::array<int, 2> pipeEnds{-1, -1};

void note(int /*signal*/) {
    const char byte = 0;
    // Nothing can be done about a failure here; a full pipe says enough already.
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
}

class UnixSignals final : public QuitRequests {
public:
    UnixSignals() {
        if (pipeEnds[0] < 0 && pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            return;
        }
        notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
            char byte = 0;
            while (read(pipeEnds[0], &byte, 1) > 0) {
            }
            emit requested();
        });
        struct sigaction action {};
        action.sa_handler = note;
        action.sa_flags = SA_RESTART;
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            sigaction(signal, &action, nullptr);
        }
    }

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace

std::unique_ptr<QuitRequests> makeUnixSignals() {
    return std::make_unique<UnixSignals>();
}

} // namespace morrowleaf
