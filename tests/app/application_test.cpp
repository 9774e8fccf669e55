// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

class ItemThat : public LoginItem {
public:
    ItemThat(Status status, std::optional<QString> error)
        : status_(status)
        , error_(std::move(error)) {}
    Status status() const override { return status_; }
    std::optional<QString> registerItem() override { return error_; }
    std::optional<QString> unregisterItem() override { return error_; }

private:
    Status status_;
    std::optional<QString> error_;
};

TEST(Application, SelfTestGoesBeforeTheLoginItem) {
    EXPECT_EQ(modeFor({"morrowleaf"}), Mode::Desktop);
    EXPECT_EQ(modeFor({"morrowleaf", "--settings", "-x"}), Mode::Desktop);
    EXPECT_EQ(modeFor({"morrowleaf", "--register-login", "--selftest"}), Mode::SelfTest);
    EXPECT_EQ(modeFor({"morrowleaf", "x", "--register-login"}), Mode::RegisterLogin);
    EXPECT_EQ(modeFor({"--selftest"}), Mode::SelfTest);
}

TEST(Application, ArgumentsAreMatchedWholeAndInTheirCase) {
    EXPECT_EQ(modeFor({"morrowleaf", "--Selftest", "--selftest=1", "selftest", "--register"}),
              Mode::Desktop);
}

TEST(Application, LinesOfTheLoginItem) {
    using Status = LoginItem::Status;
    ItemThat enabled(Status::Enabled, std::nullopt);
    EXPECT_EQ(registerLogin(enabled), "login item: enabled");
    ItemThat pending(Status::RequiresApproval, std::nullopt);
    EXPECT_EQ(registerLogin(pending), "login item: registered, pending approval");
    ItemThat lost(Status::NotRegistered, std::nullopt);
    EXPECT_EQ(registerLogin(lost), "login item: registered, pending approval");
    ItemThat failing(Status::Enabled, "Read-only file system");
    EXPECT_EQ(registerLogin(failing), "login item failed: Read-only file system");
}

} // namespace
} // namespace morrowleaf
