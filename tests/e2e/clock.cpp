// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Loaded before the C library, this moves the calendar to the year 2300.

#include <ctime>
#include <dlfcn.h>

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    using Function = int(clockid_t, timespec*);
    static auto* real = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "clock_gettime"));
    constexpr time_t year = 31556952; // seconds
    const int result = real(clock, time);
    if (result == 0 && clock == CLOCK_REALTIME) {
        time->tv_sec += 274 * year;
    }
    return result;
}

extern "C" int timespec_get(timespec* time, int base) noexcept {
    return base == TIME_UTC && clock_gettime(CLOCK_REALTIME, time) == 0 ? base : 0;
}
