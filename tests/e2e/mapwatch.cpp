// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Prints a line each time a top-level window with a given name is mapped ("map") or
// unmapped ("unmap") on an X server. After each "map" it watches the middle of the screen
// for a moment: it prints "painted" when the colour begins to change and "flash" when it
// is pure white or black. Lines that begin with "at" contain a time in milliseconds. It
// prints "mark" when the property E2E_MARK of the root window is set: by then everything
// that follows from earlier requests to the server has been printed.
//   e2e_mapwatch NAME
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <thread>

namespace {

std::string nameOf(xcb_connection_t* c, xcb_window_t window) {
    constexpr std::uint32_t longest = 64;
    auto* reply = xcb_get_property_reply(
        c, xcb_get_property(c, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, longest), nullptr);
    std::string name;
    if (reply != nullptr) {
        name.assign(static_cast<const char*>(xcb_get_property_value(reply)),
                    static_cast<std::size_t>(xcb_get_property_value_length(reply)));
    }
    std::free(reply); // NOLINT: xcb allocates with malloc
    return name;
}

xcb_atom_t atomOf(xcb_connection_t* c, const char* name) {
    auto* reply = xcb_intern_atom_reply(
        c, xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr);
    const xcb_atom_t atom = reply != nullptr ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    std::free(reply); // NOLINT: xcb allocates with malloc
    return atom;
}

std::uint32_t middlePixel(xcb_connection_t* c, const xcb_screen_t& screen) {
    const auto x = static_cast<std::int16_t>(screen.width_in_pixels / 2);
    const auto y = static_cast<std::int16_t>(screen.height_in_pixels / 2);
    auto* image = xcb_get_image_reply(
        c, xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, x, y, 1, 1, 0xFFFFFFFF),
        nullptr);
    std::uint32_t pixel = 0x808080;
    if (image != nullptr && xcb_get_image_data_length(image) >= 4) {
        std::memcpy(&pixel, xcb_get_image_data(image), sizeof pixel);
    }
    std::free(image); // NOLINT: xcb allocates with malloc
    return pixel & 0xFFFFFF;
}

double milliseconds() {
    return static_cast<double>(std::chrono::duration_cast<std::chrono::microseconds>(
                                   std::chrono::system_clock::now().time_since_epoch())
                                   .count()) /
           1000;
}

void sayAt(const char* what) {
    std::printf("at %.1f %s\n", milliseconds(), what);
    std::fflush(stdout);
}

void say(const char* what) {
    std::puts(what);
    std::fflush(stdout);
}

// Watches the middle of the screen for a moment after a window was mapped.
class FirstFrames {
public:
    FirstFrames(xcb_connection_t* c, const xcb_screen_t& screen)
        : c_(c)
        , screen_(screen)
        , before_(middlePixel(c, screen)) {}

    bool watching() const { return milliseconds() < end_; }
    void begin() {
        constexpr double watched = 350; // milliseconds
        end_ = milliseconds() + watched;
        painted_ = false;
    }
    void end() {
        end_ = 0;
        before_ = middlePixel(c_, screen_);
    }
    void look() {
        const std::uint32_t pixel = middlePixel(c_, screen_);
        if (pixel == 0 || pixel == 0xFFFFFF) {
            sayAt("flash");
            end_ = 0;
        } else if (!painted_ && pixel != before_) {
            painted_ = true;
            sayAt("painted");
        }
    }

private:
    xcb_connection_t* c_;
    const xcb_screen_t& screen_;
    std::uint32_t before_; // the colour while nothing was shown
    double end_ = 0;
    bool painted_ = false;
};

// Null if there is no event and `wait` is false.
xcb_generic_event_t* nextEvent(xcb_connection_t* c, bool wait) {
    return wait ? xcb_wait_for_event(c) : xcb_poll_for_event(c);
}

} // namespace

int main(int argc, char** argv) {
    auto* c = xcb_connect(nullptr, nullptr);
    if (argc < 2 || xcb_connection_has_error(c) != 0) {
        return 2;
    }
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    const xcb_atom_t mark = atomOf(c, "E2E_MARK");
    xcb_change_window_attributes(c, screen.root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(c);
    std::set<xcb_window_t> known;
    FirstFrames frames(c, screen);
    say("watching");
    while (xcb_connection_has_error(c) == 0) {
        auto* event = nextEvent(c, !frames.watching());
        if (event == nullptr) {
            frames.look();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            continue;
        }
        // Ignores synthetic events, which announce a withdrawal.
        const int type = event->response_type;
        if (type == XCB_MAP_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_map_notify_event_t*>(event)->window;
            if (nameOf(c, window) == argv[1]) {
                known.insert(window);
                sayAt("map");
                say("map");
                frames.begin();
            }
        } else if (type == XCB_UNMAP_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_unmap_notify_event_t*>(event)->window;
            if (known.contains(window)) {
                sayAt("unmap");
                say("unmap");
                frames.end();
            }
        } else if (type == XCB_PROPERTY_NOTIFY &&
                   reinterpret_cast<const xcb_property_notify_event_t*>(event)->atom == mark) {
            say("mark");
        }
        std::free(event); // NOLINT: xcb allocates with malloc
    }
    return 0;
}
