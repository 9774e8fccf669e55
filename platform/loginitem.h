// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace morrowleaf {

// Registers the program to be started when the user logs in. Reads and writes small files
// synchronously; needs no application object. Main thread.
class LoginItem {
public:
    enum class Status {
        NotRegistered,
        Enabled,
        RequiresApproval, // registered, but disabled or not able to start
    };

    virtual ~LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;

    virtual Status status() const = 0;
    // Both return std::nullopt on success, otherwise the system's error message.
    [[nodiscard]] virtual std::optional<QString> registerItem() = 0;
    [[nodiscard]] virtual std::optional<QString> unregisterItem() = 0;

protected:
    LoginItem() = default;
};

} // namespace morrowleaf
