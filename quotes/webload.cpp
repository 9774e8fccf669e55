#include "quotes/webload.h"

#include "quotes/hostlookup.h"
#include "quotes/systemproxies.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace morrowleaf {

namespace {

constexpr int redirectLimit = 20;
constexpr qint64 readBuffer = 64 * 1024;

QNetworkRequest requestFor(const QUrl& url) {
    QNetworkRequest request(url);
    request.setRawHeader("Accept", "application/json");
    // Followed after a look at each (see WebLoad::redirected).
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(redirectLimit);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

bool isWeb(const QUrl& url) {
    return url.scheme() == QLatin1StringView("http") || url.scheme() == QLatin1StringView("https");
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

class WebLoad : public QObject {
public:
    WebLoad(const QUrl& url, qsizetype limit)
        : limit_(limit) {
        manager_.setProxyFactory(systemProxies().release());
        reply_.reset(manager_.get(requestFor(url)));
        reply_->setReadBufferSize(readBuffer);
        connect(reply_.get(), &QNetworkReply::readyRead, this, &WebLoad::take);
        connect(reply_.get(), &QNetworkReply::finished, this, &WebLoad::finish);
        connect(reply_.get(), &QNetworkReply::redirected, this, &WebLoad::redirected);
    }

    std::optional<QByteArray> run() {
        loop_.exec();
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
        if (received_.size() <= limit_ && isAnswer(*reply_)) {
            body_ = std::move(received_);
        }
        loop_.quit();
    }

    void redirected(const QUrl& next) {
        const bool downgrade = isSecure(reply_->url()) && !isSecure(next);
        if (isWeb(next) && !downgrade && canBeReached(next)) {
            emit reply_->redirectAllowed();
        } else {
            loop_.quit();
        }
    }

    static bool isSecure(const QUrl& url) { return url.scheme() == QLatin1StringView("https"); }

    qsizetype limit_;
    QByteArray received_;
    std::optional<QByteArray> body_;
    QEventLoop loop_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
};

} // namespace

std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit) {
    if (isWeb(url) && !canBeReached(url)) {
        return std::nullopt;
    }
    return WebLoad(url, limit).run();
}

} // namespace morrowleaf
