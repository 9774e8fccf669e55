#pragma once

#include "platform/platform.h"

namespace morrowleaf {

// The ways in which a window can come to stand above everything.
enum class WindowSystem {
    Null,     // nothing of the desktop is used
    X11,      // a window that no window manager touches
    Layer,    // a Wayland layer surface
    Xwayland, // a managed full-screen window of Xwayland
    Wayland,  // an opaque full-screen window of the compositor
};

// Looks at the session and prepares the environment for it. Call before the
// application object is made. MORROWLEAF_PLATFORM (null, x11, wayland,
// xwayland) forces an answer.
WindowSystem chooseWindowSystem();

// Whether the application object can be made: without the server of that window
// system the toolkit ends the process. Call before.
bool isReachable(WindowSystem system);

// Call after the application object was made.
Platform makePlatform(WindowSystem system);

// The one part that works without an application object.
std::unique_ptr<LoginItem> makeLoginItem();

} // namespace morrowleaf
