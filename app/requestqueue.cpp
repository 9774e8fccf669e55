// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/requestqueue.h"

#include <algorithm>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// Requests of one kind replace each other.
enum class Kind { Showing, Settings, Quit };

Kind kindOf(const LaunchRequest& request) {
    return request.action == "settings"_L1 ? Kind::Settings
           : request.action == "quit"_L1   ? Kind::Quit
                                           : Kind::Showing;
}

} // namespace

RequestQueue::RequestQueue() {
    idle_.setSingleShot(true);
    idle_.setInterval(0);
    connect(&idle_, &QTimer::timeout, this, &RequestQueue::deliver);
}

void RequestQueue::add(const LaunchRequest& request) {
    std::erase_if(waiting_, [kind = kindOf(request)](const LaunchRequest& earlier) {
        return kindOf(earlier) == kind;
    });
    waiting_.push_back(request);
    idle_.start();
}

void RequestQueue::deliver() {
    const auto requests = std::exchange(waiting_, {});
    const auto quit = std::find_if(requests.begin(), requests.end(), [](const auto& request) {
        return kindOf(request) == Kind::Quit;
    });
    if (quit != requests.end()) {
        emit due(*quit);
        return;
    }
    for (const LaunchRequest& request : requests) {
        emit due(request);
    }
}

} // namespace morrowleaf
