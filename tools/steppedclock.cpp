// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that replaces the monotonic clock of a program. The clock
// stands still at the number of nanoseconds that the file named by STEPPED_CLOCK begins
// with (8 bytes in the order of the machine) and jumps when another program changes it.
// Sleeping still takes real time. Without the file the clock is the usual one.
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

const volatile std::int64_t* mapClock() {
    const char* path = std::getenv("STEPPED_CLOCK");
    const int file = path != nullptr ? open(path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0) {
        return nullptr;
    }
    void* memory = mmap(nullptr, sizeof(std::int64_t), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    return memory != MAP_FAILED ? static_cast<const volatile std::int64_t*>(memory) : nullptr;
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, struct timespec* time) noexcept {
    static const volatile std::int64_t* const stepped = mapClock();
    if (stepped == nullptr || clock != CLOCK_MONOTONIC) {
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    }
    constexpr std::int64_t second = 1'000'000'000;
    const std::int64_t now = *stepped;
    time->tv_sec = now / second;
    time->tv_nsec = now % second;
    return 0;
}
