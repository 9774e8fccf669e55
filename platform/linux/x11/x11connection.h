// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

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

// Whether the server that the environment names lets itself be connected to.
// Needs no application object.
bool serverAnswers();

// The application's own connection; null where it is no X11 application.
xcb_connection_t* connection();
xcb_window_t rootWindow();
xcb_atom_t atom(const char* name);
xcb_window_t selectionOwner(const char* selection);

// Whether a compositing manager honours the alpha of windows.
bool hasCompositor();

// The 32-bit values of a property; nothing where it is not set.
std::optional<std::vector<quint32>> property(xcb_window_t window, const char* name);
void setCardinal(xcb_window_t window, const char* name, quint32 value);

// The server's clock in milliseconds, the one of event time stamps; 0 if it
// cannot be asked.
quint32 serverTime();

xcb_window_t inputFocus();
// False when the window can no longer take it.
bool setInputFocus(xcb_window_t window);

// Whether `window` or one that holds it is an application's, by the mark of the
// window manager; a manager also gives the focus to windows of its own.
bool isClients(xcb_window_t window);

// The child of the root that holds `window`, its frame for a managed one.
xcb_window_t topLevelOf(xcb_window_t window);

} // namespace morrowleaf::x11
