// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/system.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

#include <QtGlobal>

namespace morrowleaf {

void ignoreBrokenPipes() {
    std::signal(SIGPIPE, SIG_IGN);
}

std::FILE* divertErrorOutput() {
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DEBUG")) {
        return nullptr; // the trace was asked for, and standard error is its only way out
    }
    const int kept = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    std::FILE* stream = kept >= 0 ? ::fdopen(kept, "w") : nullptr;
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (stream == nullptr || nowhere < 0 || ::dup2(nowhere, STDERR_FILENO) < 0) {
        return nullptr;
    }
    std::setvbuf(stream, nullptr, _IONBF, 0);
    ::close(nowhere);
    return stream;
}

} // namespace morrowleaf
