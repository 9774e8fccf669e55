// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that replaces the monotonic clock of a program. The clock
// stands still at the number of nanoseconds that the file named by STEPPED_CLOCK begins
// with (8 bytes in the order of the machine) and jumps when another program changes it.
// Sleeping still takes real time. Without the file the clock is the usual one. With
// STEPPED_DATE, in seconds since 1970, the calendar begins there and advances with it.
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

constexpr std::int64_t second = 1'000'000'000;

// From the stepped clock to the calendar in nanoseconds, 0 if the calendar is the usual one.
std::int64_t calendarOffset(std::int64_t now) {
    const char* date = std::getenv("STEPPED_DATE");
    return date != nullptr ? std::atoll(date) * second - now : 0;
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, struct timespec* time) noexcept {
    static const volatile std::int64_t* const stepped = mapClock();
    static const std::int64_t offset = stepped != nullptr ? calendarOffset(*stepped) : 0;
    const bool isCalendar = clock == CLOCK_REALTIME && offset != 0;
    if (stepped == nullptr || (clock != CLOCK_MONOTONIC && !isCalendar)) {
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    }
    const std::int64_t now = *stepped + (isCalendar ? offset : 0);
    time->tv_sec = now / second;
    time->tv_nsec = now % second;
    return 0;
}

extern "C" int timespec_get(struct timespec* time, int base) noexcept {
    return base == TIME_UTC && clock_gettime(CLOCK_REALTIME, time) == 0 ? base : 0;
}
