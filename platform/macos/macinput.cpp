// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"

#include <utility>

namespace morrowleaf {

namespace {

class MacInputTap final : public InputTap {
public:
    MacInputTap(TappedInput input, std::function<bool()> take)
        : take_(std::move(take))
        , watch_(macWatchInput(input == TappedInput::EscapeKey ? MacEscapeKey : MacAnyInput,
                               &MacInputTap::receive, this)) {}
    ~MacInputTap() override {
        if (watch_ != nullptr) {
            macEndInput(watch_);
        }
    }
    bool works() const { return watch_ != nullptr; }

private:
    static bool receive(void* context) { return static_cast<MacInputTap*>(context)->take_(); }

    std::function<bool()> take_;
    void* watch_;
};

class MacInputTaps final : public InputTaps {
public:
    std::unique_ptr<InputTap> tap(TappedInput input, std::function<bool()> take) override {
        auto tap = std::make_unique<MacInputTap>(input, std::move(take));
        return tap->works() ? std::move(tap) : nullptr;
    }
};

} // namespace

std::unique_ptr<InputTaps> makeMacInputTaps() {
    return std::make_unique<MacInputTaps>();
}

} // namespace morrowleaf
