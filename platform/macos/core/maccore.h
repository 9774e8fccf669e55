// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// The part of the macOS backend that speaks to the system, as plain C. Everything is for
// the main thread.

#include <stdbool.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

// Displays. Each has a number other than 0, which is constant while it is connected.

// The display whose top left corner is at this point, in points from the top left corner
// of the first display, downwards; 0 if there is none.
unsigned macDisplayAt(double x, double y);
// The display of the window that has the keyboard focus, of whichever program; 0 if no
// display is on.
unsigned macMainDisplay(void);

// Windows. A `view` is the NSView that fills a window.

typedef enum MacLevel {
    MacLevelNormal = 0,
    MacLevelFloating = 3,       // above the ordinary windows of all programs
    MacLevelScreenSaver = 1000, // above the menu bar and the Dock
} MacLevel;

// Makes the window a transparent one without a shadow on all spaces, at `level`, over the
// whole of `display`. Returns false, and does nothing, if there is no such display.
bool macCoverDisplay(void* view, unsigned display, MacLevel level);
void macSetLevel(void* view, MacLevel level);
void macSetAlpha(void* view, double alpha); // 0...1
// In front of all windows of its level, with the keyboard focus; activates the program.
void macOrderFront(void* view);
void macOrderOut(void* view);

// Layers between the desktop and what a program draws in its window.

typedef enum MacBackdropKind {
    MacBackdropBlur,
    MacBackdropGlass,      // needs macOS 26; the blur where that is missing
    MacBackdropClearGlass, // the same
} MacBackdropKind;

// Returns a layer that is to be removed with macRemoveBackdrop().
void* macAddBackdrop(void* view, MacBackdropKind kind);
void macTintBackdrop(void* backdrop, double red, double green, double blue, double alpha);
void macSetBackdropOpacity(void* backdrop, double opacity);
void macRemoveBackdrop(void* backdrop);

// The session of the user.

typedef enum MacSessionEvent {
    MacDidWake,
    MacWillSleep,
    MacSessionDidBecomeActive,
    MacSessionDidResignActive,
    MacScreenIsUnlocked,
    MacScreenIsLocked,
} MacSessionEvent;

typedef void (*MacSessionCallback)(void* context, MacSessionEvent event);

// To be ended with macEndSession(), after which there are no calls.
void* macWatchSession(MacSessionCallback callback, void* context);
void macEndSession(void* watch);
// Whether the screen is locked at this moment.
bool macIsScreenLocked(void);

// Input.

typedef enum MacInput {
    MacAnyInput,  // the left or the right mouse button, or a key other than a modifier
    MacEscapeKey, // by its place on the keyboard
} MacInput;

// Returns whether the event is consumed.
typedef bool (*MacInputCallback)(void* context);

// Calls `callback` for the events of this program, before its menus and windows get them.
// To be ended with macEndInput(), but not from within the callback. Returns null if the
// system refuses.
void* macWatchInput(MacInput input, MacInputCallback callback, void* context);
void macEndInput(void* watch);

// The item in the list of what is opened at login.

typedef enum MacLoginStatus {
    MacLoginNotRegistered,
    MacLoginEnabled,
    MacLoginRequiresApproval,
    MacLoginNotFound, // the system does not know the program
} MacLoginStatus;

MacLoginStatus macLoginStatus(void);
// Both return false if the system refuses; `words` then holds as much of its explanation,
// UTF-8 with a final zero, as fits into `size` bytes, and otherwise an empty text.
bool macRegisterLogin(char* words, size_t size);
bool macUnregisterLogin(char* words, size_t size);

// The program.

// No icon in the Dock and no menu bar, also outside a bundle that says so.
void macBecomeAccessory(void);
// Draws the symbol of the status item in black into the middle of `pixels`: `size` rows of
// `size` pixels of 4 bytes, red, green, blue and alpha, premultiplied. Returns false if
// the system has no such symbol.
bool macDrawStatusSymbol(unsigned char* pixels, unsigned size);

#ifdef __cplusplus
}
#endif
