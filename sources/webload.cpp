// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/webload.h"

#include "base/job.h"
#include "platform/network.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThreadPool>

#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isSecure(const QUrl& url) {
    return url.scheme() == "https"_L1;
}

bool isWeb(const QUrl& url) {
    return isSecure(url) || url.scheme() == "http"_L1;
}

// The proxies of the desktop or the environment, queried for every connection. A query
// may block for long.
class SystemProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

QString firstHost(const QUrl& url) {
    const QList<QNetworkProxy> proxies = SystemProxies().queryProxy(QNetworkProxyQuery(url));
    const QNetworkProxy proxy = proxies.value(0, QNetworkProxy(QNetworkProxy::NoProxy));
    return proxy.hostName().isEmpty() ? url.host(QUrl::FullyEncoded) : proxy.hostName();
}

// Whether the first host on the way to `url` (a proxy, or its own host) has an address.
// Blocks as long as the resolver does. Checked before connecting, because Qt resolves
// names on threads that it joins at exit: a resolver that hangs would keep the program
// from ending.
bool canBeReached(const QUrl& url) {
    return hasAddress(firstHost(url).toUtf8());
}

constexpr int redirectLimit = 20;
constexpr qint64 readBuffer = qint64{64} * 1024;

// Bytes received that end a connection: during the load, and after it.
constexpr std::uint64_t floodBytes = std::uint64_t{5} << 20U;
constexpr std::uint64_t remainderBytes = std::uint64_t{1} << 20U;
constexpr auto guardPause = std::chrono::milliseconds(100);

QNetworkRequest requestFor(const QUrl& url) {
    QNetworkRequest request(url);
    request.setRawHeader("Accept", "application/json");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(redirectLimit);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

// Responses with an error status count as answers too; interrupted transfers do not.
bool isAnswer(const QNetworkReply& reply) {
    switch (reply.error()) {
    case QNetworkReply::NoError:
        return true;
    case QNetworkReply::ProxyAuthenticationRequiredError:
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::AuthenticationRequiredError:
    case QNetworkReply::ContentConflictError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::UnknownContentError:
    case QNetworkReply::ProtocolInvalidOperationError:
    case QNetworkReply::InternalServerError:
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400;
    default:
        return false;
    }
}

// Qt does not report when the body of an error response is incomplete.
bool isComplete(const QNetworkReply& reply, qsizetype received) {
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    return reply.error() == QNetworkReply::NoError || !announced.isValid() ||
           reply.hasRawHeader("Content-Encoding") || received >= announced.toLongLong();
}

class WebLoad : public QObject {
public:
    WebLoad(const QUrl& url, qsizetype limit, const StopToken& stop)
        : at_(url)
        , limit_(limit)
        , stop_(stop) {
        manager_.setProxyFactory(new SystemProxies); // takes ownership
        reply_.reset(manager_.get(requestFor(url)));
        reply_->setReadBufferSize(readBuffer);
        connect(reply_.get(), &QNetworkReply::readyRead, this, &WebLoad::take);
        connect(reply_.get(), &QNetworkReply::finished, this, &WebLoad::finish);
        connect(reply_.get(), &QNetworkReply::redirected, this, &WebLoad::redirected);
    }

    std::optional<QByteArray> run() {
        loop_.exec();
        // On its own thread Qt reads a header for as long as it keeps coming, even if
        // nobody waits for it any more.
        flood_.end(remainderBytes);
        return std::move(body_);
    }

private:
    void take() {
        while (reply_->bytesAvailable() > 0) {
            received_ += reply_->read(readBuffer);
            if (received_.size() > limit_) {
                loop_.quit();
                return;
            }
        }
    }

    void finish() {
        take();
        if (received_.size() <= limit_ && isAnswer(*reply_) &&
            isComplete(*reply_, received_.size())) {
            body_ = std::move(received_);
        }
        loop_.quit();
    }

    bool watch(const StopToken& ended) {
        bool flooded = false;
        while (!ended.waitFor(guardPause)) {
            flooded = flood_.end(floodBytes) || flooded;
            if (flooded || stop_.isRequested()) {
                loop_.quit(); // and again next time: it may not have started yet
            }
        }
        return flooded;
    }

    // Qt sends the next request after this returns.
    void redirected(const QUrl& next) {
        const QUrl from = std::exchange(at_, next);
        if (!mayRedirect(from, next) || !canBeReached(next)) {
            loop_.quit();
        }
    }

    QUrl at_;
    qsizetype limit_;
    StopToken stop_;
    QByteArray received_;
    std::optional<QByteArray> body_;
    QEventLoop loop_;
    FloodGuard flood_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
    // A flood keeps this thread too busy for a timer. The destructor of the pool waits for
    // the watch.
    QThreadPool watchers_;
    Job watch_{watchers_, [this](const StopToken& ended) { return watch(ended); }, [](bool) {}};
};

} // namespace

bool mayRedirect(const QUrl& from, const QUrl& to) {
    return isWeb(to) && (!isSecure(from) || isSecure(to));
}

std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit, const StopToken& stop) {
    if (isWeb(url) && !canBeReached(url)) {
        return std::nullopt;
    }
    return WebLoad(url, limit, stop).run();
}

} // namespace morrowleaf
