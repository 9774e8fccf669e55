// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"

#include <array>

namespace morrowleaf {

namespace {

using Change = bool (*)(char* words, size_t size);

std::optional<QString> tryTo(Change change) {
    std::array<char, 1024> words{};
    if (change(words.data(), words.size())) {
        return std::nullopt;
    }
    return QString::fromUtf8(words.data());
}

class MacLoginItem final : public LoginItem {
public:
    Status status() const override {
        switch (macLoginStatus()) {
        case MacLoginEnabled:
            return Status::Enabled;
        case MacLoginRequiresApproval:
            return Status::RequiresApproval;
        case MacLoginNotRegistered:
        case MacLoginNotFound:
            break;
        }
        return Status::NotRegistered;
    }
    std::optional<QString> registerItem() override { return tryTo(macRegisterLogin); }
    std::optional<QString> unregisterItem() override { return tryTo(macUnregisterLogin); }
};

} // namespace

std::unique_ptr<LoginItem> makeMacLoginItem() {
    return std::make_unique<MacLoginItem>();
}

} // namespace morrowleaf
