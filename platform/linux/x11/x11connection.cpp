// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11connection.h"

#include <QGuiApplication>

#include <array>
#include <cstring>

namespace morrowleaf::x11 {

int screenDepth() {
    int number = 0;
    auto* c = xcb_connect(nullptr, &number);
    int depth = 0;
    if (xcb_connection_has_error(c) == 0) {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(c));
        for (; number > 0 && screens.rem > 1; --number) {
            xcb_screen_next(&screens);
        }
        depth = screens.data->root_depth;
    }
    xcb_disconnect(c);
    return depth;
}

xcb_connection_t* connection() {
    if (qGuiApp == nullptr) {
        return nullptr;
    }
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_window_t rootWindow() {
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

xcb_atom_t atom(const char* name) {
    auto* c = connection();
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, length, name), nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_window_t selectionOwner(const char* selection) {
    auto* c = connection();
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, atom(selection)), nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool hasCompositor() {
    return selectionOwner("_NET_WM_CM_S0") != XCB_WINDOW_NONE;
}

bool hasWindowManager() {
    const auto check = property(rootWindow(), "_NET_SUPPORTING_WM_CHECK");
    return check && !check->empty() && check->front() != XCB_WINDOW_NONE;
}

std::optional<std::vector<quint32>> property(xcb_window_t window, const char* name) {
    auto* c = connection();
    constexpr std::uint32_t longest = 1024;
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, window, atom(name), XCB_ATOM_ANY, 0, longest), nullptr));
    if (!reply || reply->format != 32) {
        return std::nullopt;
    }
    const auto* values = static_cast<const quint32*>(xcb_get_property_value(reply.get()));
    return std::vector<quint32>(values, values + reply->value_len);
}

QByteArray bytesOf(xcb_window_t window, const char* name) {
    auto* c = connection();
    constexpr std::uint32_t longest = 1U << 16U; // words of four bytes
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, window, atom(name), XCB_ATOM_ANY, 0, longest), nullptr));
    if (!reply || reply->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

void setCardinal(xcb_window_t window, const char* name, quint32 value) {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(name), XCB_ATOM_CARDINAL,
                        32, 1, &value);
}

void hideFromTaskLists(xcb_window_t window) {
    const std::array<xcb_atom_t, 2> states{atom("_NET_WM_STATE_SKIP_TASKBAR"),
                                           atom("_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection(), XCB_PROP_MODE_APPEND, window, atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void forgetUserTime(xcb_window_t window) {
    // Qt keeps the time on a window of its own where the window manager supports that.
    const auto keeper = property(window, "_NET_WM_USER_TIME_WINDOW");
    setCardinal(keeper && !keeper->empty() ? keeper->front() : window, "_NET_WM_USER_TIME", 0);
}

// A property change is the one request that the server answers with its time. On the
// application's connection Qt could receive the answer instead.
quint32 serverTime() {
    auto* c = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(c) != 0) {
        xcb_disconnect(c);
        return 0;
    }
    const xcb_window_t window = xcb_generate_id(c);
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    xcb_create_window(c, 0, window, root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                      XCB_CW_EVENT_MASK, &mask);
    xcb_change_property(c, XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    xcb_flush(c);
    quint32 time = 0;
    while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(c)}) {
        if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY) {
            time = reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
            break;
        }
    }
    xcb_disconnect(c);
    return time;
}

void listenTo(xcb_window_t window, std::uint32_t events) {
    auto* c = connection();
    const Reply<xcb_get_window_attributes_reply_t> now(
        xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, window), nullptr));
    if (now) {
        const std::uint32_t mask = now->your_event_mask | events;
        // Checked, so that an error does not reach Qt, which would print it.
        const Reply<xcb_generic_error_t> ignored(xcb_request_check(
            c, xcb_change_window_attributes_checked(c, window, XCB_CW_EVENT_MASK, &mask)));
    }
}

xcb_window_t inputFocus() {
    auto* c = connection();
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool isPressedOutside(xcb_window_t window) {
    auto* c = connection();
    const auto pointerCookie = xcb_query_pointer(c, window);
    const auto geometryCookie = xcb_get_geometry(c, window);
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(c, pointerCookie, nullptr));
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(c, geometryCookie, nullptr));
    constexpr int buttons =
        XCB_KEY_BUT_MASK_BUTTON_1 | XCB_KEY_BUT_MASK_BUTTON_2 | XCB_KEY_BUT_MASK_BUTTON_3;
    return pointer && geometry && (pointer->mask & buttons) != 0 &&
           (pointer->win_x < 0 || pointer->win_x >= geometry->width || pointer->win_y < 0 ||
            pointer->win_y >= geometry->height);
}

void setInputFocus(xcb_window_t window) {
    auto* c = connection();
    // Checked, so that an error does not reach Qt, which would print it.
    const Reply<xcb_generic_error_t> ignored(xcb_request_check(
        c, xcb_set_input_focus_checked(c, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME)));
}

bool belongsToApplication(xcb_window_t window) {
    auto* c = connection();
    while (window > XCB_INPUT_FOCUS_POINTER_ROOT) {
        if (property(window, "WM_STATE")) {
            return true;
        }
        const Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(c, xcb_query_tree(c, window), nullptr));
        if (!tree) {
            return false;
        }
        window = tree->parent;
    }
    return false;
}

} // namespace morrowleaf::x11
