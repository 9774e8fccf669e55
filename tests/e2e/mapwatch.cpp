// Prints a line each time a top-level window of a given name comes onto the
// screen of an X server ("map") or leaves it ("unmap").
//   e2e_mapwatch NAME
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>

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

void say(const char* what) {
    std::puts(what);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    auto* c = xcb_connect(nullptr, nullptr);
    if (argc < 2 || xcb_connection_has_error(c) != 0) {
        return 2;
    }
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(c, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(c);
    std::set<xcb_window_t> known;
    say("watching");
    while (auto* event = xcb_wait_for_event(c)) {
        // What was only sent, as the sign of a withdrawal is, did not happen.
        const int type = event->response_type;
        if (type == XCB_MAP_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_map_notify_event_t*>(event)->window;
            if (nameOf(c, window) == argv[1]) {
                known.insert(window);
                say("map");
            }
        } else if (type == XCB_UNMAP_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_unmap_notify_event_t*>(event)->window;
            if (known.contains(window)) {
                say("unmap");
            }
        }
        std::free(event); // NOLINT: xcb allocates with malloc
    }
    return 0;
}
