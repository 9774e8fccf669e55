// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace morrowleaf {

// A request to stop, as the work sees it. The C++ library of macOS has gained the
// standard's own only lately. Copies see the same request. Any thread.
class StopToken {
public:
    StopToken() = default; // never requested

    bool isRequested() const { return waitFor(std::chrono::milliseconds(0)); }

    // Returns as soon as it is requested, or after `longest`. Returns isRequested().
    bool waitFor(std::chrono::milliseconds longest) const {
        std::unique_lock lock(state_->mutex);
        return state_->changed.wait_for(lock, longest, [this] { return state_->isRequested; });
    }

private:
    friend class StopSource;
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        bool isRequested = false;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

// Makes that request. Any thread.
class StopSource {
public:
    StopToken token() const { return token_; }

    void request() {
        const std::scoped_lock lock(token_.state_->mutex);
        token_.state_->isRequested = true;
        token_.state_->changed.notify_all();
    }

private:
    StopToken token_;
};

} // namespace morrowleaf
