// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace morrowleaf::x11 {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // NOLINT: xcb allocates with malloc
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

// The bits of a pixel on the screen that DISPLAY names; 0 if its server does not accept a
// connection. Needs no application object.
int screenDepth();

// The connection of Qt's application object; null if that does not use X11. All functions
// below require a connection. Main thread.
xcb_connection_t* connection();
xcb_window_t rootWindow();
xcb_atom_t atom(const char* name);
xcb_window_t selectionOwner(const char* selection);

// Whether a compositing manager blends windows by their alpha.
bool hasCompositor();

bool hasWindowManager();

// The 32-bit values of a property, at most 1024; std::nullopt if it is not set.
[[nodiscard]] std::optional<std::vector<quint32>> property(xcb_window_t window, const char* name);
// The bytes of a property, at most 256 KiB; empty if it is not set.
QByteArray bytesOf(xcb_window_t window, const char* name);
void setCardinal(xcb_window_t window, const char* name, quint32 value);

// Keeps a window that is not mapped yet out of task bars and pagers.
void hideFromTaskLists(xcb_window_t window);

// Tells the window manager nothing of when the user was last active in a window that Qt has
// mapped.
void forgetUserTime(xcb_window_t window);

// Whether a mouse button is pressed outside of a mapped window. A round trip.
bool isPressedOutside(xcb_window_t window);

// The server's time in milliseconds, on the clock of event time stamps; 0 on
// failure. Blocks for a round trip on a connection of its own.
quint32 serverTime();

// Selects events of a window in addition to those selected already. The window may be gone.
void listenTo(xcb_window_t window, std::uint32_t events);

xcb_window_t inputFocus();
// Does nothing if the window cannot take the focus, for example because it is gone.
void setInputFocus(xcb_window_t window);

// Whether `window` or one of its ancestors belongs to an application: window
// managers mark such windows, and also focus windows of their own.
bool belongsToApplication(xcb_window_t window);

} // namespace morrowleaf::x11
