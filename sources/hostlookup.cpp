#include "sources/hostlookup.h"

#include "sources/systemproxies.h"

#include <netdb.h>
#include <sys/socket.h>

namespace morrowleaf {

namespace {

QString firstHost(const QUrl& url) {
    const QList<QNetworkProxy> proxies = systemProxies()->queryProxy(QNetworkProxyQuery(url));
    const QNetworkProxy proxy = proxies.value(0, QNetworkProxy(QNetworkProxy::NoProxy));
    return proxy.hostName().isEmpty() ? url.host(QUrl::FullyEncoded) : proxy.hostName();
}

} // namespace

bool canBeReached(const QUrl& url) {
    addrinfo wanted{};
    wanted.ai_family = AF_UNSPEC;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const QByteArray host = firstHost(url).toUtf8();
    if (::getaddrinfo(host.constData(), nullptr, &wanted, &found) != 0) {
        return false;
    }
    ::freeaddrinfo(found);
    return true;
}

} // namespace morrowleaf
