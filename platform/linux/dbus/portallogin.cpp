// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portallogin.h"

#include "portal_interface.h"

#include <QDBusObjectPath>
#include <QUuid>
#include <QVariantMap>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Background = OrgFreedesktopPortalBackgroundInterface;
using Request = OrgFreedesktopPortalRequestInterface;

const QString path = u"/org/freedesktop/portal/desktop"_s;

} // namespace

PortalLoginItem::PortalLoginItem(std::shared_ptr<const BusLink> session,
                                 std::unique_ptr<LoginItem> record)
    : session_(std::move(session))
    , record_(std::move(record))
    , portal_(u"org.freedesktop.portal.Desktop"_s) {
    connect(&portal_, &BusService::appeared, this, &PortalLoginItem::send);
    connect(&portal_, &BusService::activationFailed, this, [this] { isAsking_ = false; });
}

std::optional<QString> PortalLoginItem::registerItem() {
    if (auto error = ask(true)) {
        return error;
    }
    return record_->registerItem();
}

std::optional<QString> PortalLoginItem::unregisterItem() {
    if (auto error = ask(false)) {
        return error;
    }
    return record_->unregisterItem();
}

std::optional<QString> PortalLoginItem::ask(bool isStarted) {
    if (!session_->bus().isConnected()) {
        return u"There is no session bus."_s;
    }
    isAsking_ = true;
    isStarted_ = isStarted;
    portal_.follow(session_->bus());
    portal_.activate();
    return std::nullopt;
}

void PortalLoginItem::send() {
    if (!std::exchange(isAsking_, false)) {
        return; // another portal has taken the place of the one that was asked
    }
    const QString token = u"morrowleaf"_s + QUuid::createUuid().toString(QUuid::Id128);
    const QString sender = session_->bus().baseService().mid(1).replace('.'_L1, '_'_L1);
    // Agreed upon by the token: the answer may be faster than the return of the call.
    listenAt(path + u"/request/%1/%2"_s.arg(sender, token));
    Background(portal_.owner(), path, session_->bus())
        .RequestBackground({}, {{u"handle_token"_s, token},
                                {u"autostart"_s, isStarted_},
                                {u"commandline"_s, QStringList{u"morrowleaf"_s}}});
}

void PortalLoginItem::listenAt(const QString& requestPath) {
    answer_ = std::make_unique<QObject>();
    auto* request = new BusSignals<Request>(requestPath, session_->bus(), answer_.get());
    connect(request, &Request::Response, this,
            [this, request](uint /*code*/, const QVariantMap& results) {
                const bool isRefused = isStarted_ && !results.value(u"autostart"_s).toBool();
                if (portal_.sent(*request) && isRefused) {
                    // What fails here is tried again with the next change.
                    static_cast<void>(record_->unregisterItem());
                }
            });
}

} // namespace morrowleaf
