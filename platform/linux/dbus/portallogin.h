// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/loginitem.h"

#include <QObject>

#include <memory>

namespace morrowleaf {

// The login item of a program in a sandbox. The portal starts it, and may ask the user
// first; it does not tell afterwards whether it does, so `record` remembers.
class PortalLoginItem final : public QObject, public LoginItem {
    Q_OBJECT

public:
    // `session` is opened by whoever created it.
    PortalLoginItem(std::shared_ptr<const BusLink> session, std::unique_ptr<LoginItem> record);

    Status status() const override { return record_->status(); }
    // Both succeed before the portal has answered. If the user refuses, status() says so
    // then.
    std::optional<QString> registerItem() override;
    std::optional<QString> unregisterItem() override;

private:
    std::optional<QString> ask(bool isStarted);
    void send();
    void listenAt(const QString& path);

    std::shared_ptr<const BusLink> session_;
    std::unique_ptr<LoginItem> record_;
    BusService portal_;
    std::unique_ptr<QObject> answer_; // to the last question
    bool isAsking_ = false;
    bool isStarted_ = false; // what was asked for last
};

} // namespace morrowleaf
