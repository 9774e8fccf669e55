// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QScreen;
class QWindow;
struct wl_display;
struct wl_output;
struct wl_surface;

// The compositor's objects behind the toolkit's; null where there are none.
namespace morrowleaf::wayland {

wl_display* display();
wl_surface* surfaceOf(QWindow& window);
wl_output* outputOf(QScreen& screen);

// Makes the toolkit send keys to `window`: a surface with a role of its own
// never hears from the compositor that it is the active one.
void takeFocus(QWindow& window);

} // namespace morrowleaf::wayland
