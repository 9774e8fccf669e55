// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/hostlookup.h"

#include "platform/hostaddress.h"
#include "sources/systemproxies.h"

namespace morrowleaf {

namespace {

QString firstHost(const QUrl& url) {
    const QList<QNetworkProxy> proxies = systemProxies()->queryProxy(QNetworkProxyQuery(url));
    const QNetworkProxy proxy = proxies.value(0, QNetworkProxy(QNetworkProxy::NoProxy));
    return proxy.hostName().isEmpty() ? url.host(QUrl::FullyEncoded) : proxy.hostName();
}

} // namespace

bool canBeReached(const QUrl& url) {
    return hasAddress(firstHost(url).toUtf8());
}

} // namespace morrowleaf
