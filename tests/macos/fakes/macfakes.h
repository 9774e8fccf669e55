// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

// Stands in for the classes of macOS that the backend's core uses, on the Objective-C
// runtime of this machine: it notes what it is told, refuses what the real ones refuse,
// and counts objects. Main thread.
namespace macfakes {

// Forgets everything; every test begins with it.
void reset();

// Objects of the system's or the core's classes that were made and not freed.
long liveObjects();
// What the system would have answered with a crash, a leak or silence: an object that is
// released too often, one without a pool, an observer that is freed while it observes, and
// others.
std::vector<std::string>& mistakes();

// A window, in points from the bottom left corner of the first display.
struct Window {
    long level = 0;
    unsigned long behaviour = 0;
    bool isOpaque = true;
    bool isClear = false; // its background
    bool hasShadow = true;
    bool isAnimated = true; // by the system, when it comes and goes
    bool isOrderedIn = false;
    bool isKey = false;
    double alpha = 1;
    double x = 0;
    double y = 0;
    double width = 100;
    double height = 100;
};

// An NSView that fills a window of its own; lives until reset().
void* makeView();
Window& windowOf(void* view);

// A view behind that of the program, or in a view there.
struct Layer {
    std::string kind; // its class
    long style = -1;  // of a glass
    double red = 0;   // its tint or colour
    double green = 0;
    double blue = 0;
    double alpha = 0;
    double opacity = 1;
};
// Behind the program's view, back to front; a view without contents of its own is left
// out, and its opacity applied to the views in it.
std::vector<Layer> layersBehind(void* view);

void addDisplay(unsigned number, double x, double y, double width, double height);
void removeDisplay(unsigned number);
void setMainDisplay(unsigned number); // 0: none

void postFromWorkspace(const std::string& name);
// `isInFront`: whether the program is the active one.
void postToEverybody(const std::string& name, bool isInFront);
void setScreenLocked(bool isLocked);
void setHasSession(bool hasSession);

void setLoginStatus(long status);
// With these words; with none, nothing is refused.
void refuseLogin(const std::string& words);

// Both return whether a monitor has consumed the event.
bool pressKey(unsigned short code);
enum class Button { Left = 1, Right = 3, Other = 25 }; // types of events
bool pressButton(Button button);
void refuseMonitors();

void setHasSymbols(bool hasSymbols);
// What the program has asked for itself, in order.
std::vector<std::string>& programCalls();

} // namespace macfakes
