// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Loaded before the library of the X protocol, this lets a moment pass before the program
// gives the focus to a window, as on a busy machine.

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <dlfcn.h>
#include <thread>

extern "C" xcb_void_cookie_t xcb_set_input_focus_checked(xcb_connection_t* connection,
                                                         std::uint8_t revertTo, xcb_window_t focus,
                                                         xcb_timestamp_t time) {
    using Function = decltype(xcb_set_input_focus_checked);
    static auto* real =
        reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "xcb_set_input_focus_checked"));
    constexpr std::chrono::milliseconds moment(40);
    xcb_flush(connection);
    std::this_thread::sleep_for(moment);
    return real(connection, revertTo, focus, time);
}
