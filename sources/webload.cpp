// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/webload.h"

#include "platform/floodguard.h"
#include "sources/hostlookup.h"
#include "sources/systemproxies.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace morrowleaf {

namespace {

bool isSecure(const QUrl& url) {
    return url.scheme() == QLatin1StringView("https");
}

bool isWeb(const QUrl& url) {
    return isSecure(url) || url.scheme() == QLatin1StringView("http");
}

constexpr int redirectLimit = 20;
constexpr qint64 readBuffer = qint64{64} * 1024;

// No honest answer takes as much on the wire: while loading, and at its end.
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

// Every status counts as an answer, though the network layer calls some of
// them errors; a transfer that broke off does not.
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

// An error status hides from us that its body broke off.
bool isComplete(const QNetworkReply& reply, qsizetype received) {
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    return reply.error() == QNetworkReply::NoError || !announced.isValid() ||
           reply.hasRawHeader("Content-Encoding") || received >= announced.toLongLong();
}

class WebLoad : public QObject {
public:
    WebLoad(const QUrl& url, qsizetype limit)
        : at_(url)
        , limit_(limit) {
        manager_.setProxyFactory(systemProxies().release());
        reply_.reset(manager_.get(requestFor(url)));
        reply_->setReadBufferSize(readBuffer);
        connect(reply_.get(), &QNetworkReply::readyRead, this, &WebLoad::take);
        connect(reply_.get(), &QNetworkReply::finished, this, &WebLoad::finish);
        connect(reply_.get(), &QNetworkReply::redirected, this, &WebLoad::redirected);
    }

    std::optional<QByteArray> run() {
        loop_.exec();
        // The network layer reads on in its own thread as long as a header
        // keeps coming, whether or not anybody waits for it.
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

    void watch(const std::stop_token& stop) {
        std::mutex mutex;
        std::unique_lock lock(mutex);
        std::condition_variable_any ended;
        while (!stop.stop_requested()) {
            ended.wait_for(lock, stop, guardPause, [] { return false; });
            if (flood_.end(floodBytes)) {
                loop_.quit();
            }
        }
    }

    // The next request goes out once this has returned.
    void redirected(const QUrl& next) {
        const QUrl from = std::exchange(at_, next);
        if (!mayRedirect(from, next) || !canBeReached(next)) {
            loop_.quit();
        }
    }

    QUrl at_;
    qsizetype limit_;
    QByteArray received_;
    std::optional<QByteArray> body_;
    QEventLoop loop_;
    FloodGuard flood_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
    // A flood keeps this thread too busy for a timer of its own.
    std::jthread watch_{[this](const std::stop_token& stop) { watch(stop); }};
};

} // namespace

bool mayRedirect(const QUrl& from, const QUrl& to) {
    return isWeb(to) && (!isSecure(from) || isSecure(to));
}

std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit) {
    if (isWeb(url) && !canBeReached(url)) {
        return std::nullopt;
    }
    return WebLoad(url, limit).run();
}

} // namespace morrowleaf
