// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

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

TEST(Application, LinesOfTheLoginItem) {
    using Status = LoginItem::Status;
    ItemThat enabled(Status::Enabled, std::nullopt);
    EXPECT_EQ(registerLogin(enabled), u"login item: enabled"_s);
    ItemThat pending(Status::RequiresApproval, std::nullopt);
    EXPECT_EQ(registerLogin(pending), u"login item: registered, pending approval"_s);
    ItemThat lost(Status::NotRegistered, std::nullopt);
    EXPECT_EQ(registerLogin(lost), u"login item: registered, pending approval"_s);
    ItemThat failing(Status::Enabled, u"Read-only file system"_s);
    EXPECT_EQ(registerLogin(failing), u"login item failed: Read-only file system"_s);
}

} // namespace
} // namespace morrowleaf
