// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace morrowleaf {

// Whether the desktop starts the program when the user logs in.
class LoginItem {
public:
    enum class Status {
        NotRegistered,
        Enabled,
        RequiresApproval, // registered, yet something keeps it from being started
    };

    virtual ~LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;

    virtual Status status() const = 0;
    // Both give nothing on success, else the system's own words.
    virtual std::optional<QString> registerItem() = 0;
    virtual std::optional<QString> unregisterItem() = 0;

protected:
    LoginItem() = default;
};

} // namespace morrowleaf
