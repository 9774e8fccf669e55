// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalrequest.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QUrl>
#include <QUuid>

#include <utility>

namespace morrowleaf {
namespace {

constexpr QLatin1StringView service{"org.freedesktop.portal.Desktop"};
constexpr QLatin1StringView objectPath{"/org/freedesktop/portal/desktop"};
constexpr QLatin1StringView chooserInterface{"org.freedesktop.portal.FileChooser"};
constexpr QLatin1StringView requestInterface{"org.freedesktop.portal.Request"};
constexpr int patience = 8000; // milliseconds for the portal to start and open its dialog

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, QObject* owner, Done done)
    : bus_(bus)
    , done_(std::move(done))
    , token_(QStringLiteral("morrowleaf") + QUuid::createUuid().toString(QUuid::Id128)) {
    connect(owner, &QObject::destroyed, this, [this] {
        takeBack();
        deleteLater();
    });
    auto* watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish({.kind = FileAnswer::Kind::Cancelled, .path = {}}); });
}

void PortalRequest::openFile(const QString& window, const QString& title, QVariantMap options) {
    options.insert(QStringLiteral("handle_token"), token_);
    // The answer may be faster than the call's own return.
    const QString sender = bus_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    listenAt(objectPath + QStringLiteral("/request/%1/%2").arg(sender, token_));
    QDBusMessage call = QDBusMessage::createMethodCall(service, objectPath, chooserInterface,
                                                       QStringLiteral("OpenFile"));
    call << window << title << options;
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call, patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError()) {
            takeBack();
            finish({});
        } else if (reply.value().path() != path_) {
            listenAt(reply.value().path());
        }
    });
}

void PortalRequest::listenAt(const QString& path) {
    path_ = path;
    bus_.connect(service, path_, requestInterface, QStringLiteral("Response"), this,
                 SLOT(response(uint, QVariantMap)));
}

void PortalRequest::response(uint code, const QVariantMap& results) {
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    const QString path = code == 0 && !addresses.isEmpty()
                             ? QUrl(addresses.first(), QUrl::StrictMode).toLocalFile()
                             : QString();
    finish({.kind = path.isEmpty() ? FileAnswer::Kind::Cancelled : FileAnswer::Kind::Chosen,
            .path = path});
}

void PortalRequest::finish(const FileAnswer& answer) {
    if (const Done done = std::exchange(done_, nullptr)) {
        deleteLater();
        done(answer);
    }
}

void PortalRequest::takeBack() {
    bus_.asyncCall(
        QDBusMessage::createMethodCall(service, path_, requestInterface, QStringLiteral("Close")));
}

} // namespace morrowleaf
