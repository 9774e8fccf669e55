// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/jail.h"

#include <csignal>

#include <sys/resource.h>

namespace morrowleaf {

namespace {

constexpr rlim_t mebibyte = rlim_t{1} << 20U;

void limit(decltype(RLIMIT_CPU) what, rlim_t most) {
    const rlimit both{most, most};
    ::setrlimit(what, &both);
}

} // namespace

void setReaderLimits(JailKind kind) {
    const bool photo = kind == JailKind::Photo;
    // The sanitizers reserve address space beyond every limit.
#if !defined(__SANITIZE_ADDRESS__)
    limit(RLIMIT_DATA, (photo ? 640 : 128) * mebibyte);
#endif
    limit(RLIMIT_CPU, photo ? 20 : 6); // seconds
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_NOFILE, 64);
    // Standard error may be a file: writing to it is an error then, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    limit(RLIMIT_FSIZE, 0);
    // The limit counts all threads of the user, so only what needs no thread of its own can
    // have one. The rest depends on the refusal of new processes.
    if (kind == JailKind::OpenFile) {
        limit(RLIMIT_NPROC, 0);
    }
}

} // namespace morrowleaf
