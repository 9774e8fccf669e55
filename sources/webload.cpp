// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/webload.h"

#include "platform/network.h"
#include "platform/readerside.h"
#include "sources/sourcebytes.h"

#include <QLibrary>

#include <algorithm>
#include <array>

#include <curl/curl.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr long redirectLimit = 20;
constexpr int headerLimit = 1000;                        // lines, of all responses together
constexpr qsizetype headerBytes = qsizetype{256} * 1024; // of all responses together
constexpr long timeout = 6000; // milliseconds; only counts if nobody kills the process

bool namesProxy(const char* variable) {
    return !qEnvironmentVariableIsEmpty(variable);
}

// The desktop's proxy for `url`, or an empty text for none.
QByteArray desktopProxy(const QByteArray& url) {
    using Factory = void* (*)();
    using Proxies = char** (*)(void*, const char*);
    QLibrary library(u"proxy"_s, 1);
    const auto make = reinterpret_cast<Factory>(library.resolve("px_proxy_factory_new"));
    const auto ask = reinterpret_cast<Proxies>(library.resolve("px_proxy_factory_get_proxies"));
    void* const factory = make != nullptr && ask != nullptr ? make() : nullptr;
    char** const proxies = factory != nullptr ? ask(factory, url.constData()) : nullptr;
    const QByteArray first = proxies != nullptr ? QByteArray(proxies[0]) : QByteArray();
    if (first.startsWith("socks://")) {
        return "socks5://" + first.sliced(8);
    }
    return first.startsWith("direct") ? QByteArray() : first;
}

bool isHttp(CURL* curl) {
    const char* scheme = nullptr;
    curl_easy_getinfo(curl, CURLINFO_SCHEME, &scheme);
    return qstricmp(scheme, "http") == 0;
}

} // namespace

struct WebTransfer {
    CURL* curl = nullptr;
    curl_slist* fields = nullptr;
    qsizetype limit = 0;
    QByteArray body;
    int headers = 0;
    qsizetype bytesOfHeaders = 0;
    bool wasSecure = false;
    QList<QByteArray> certificates;

    template <typename Value>
    void set(CURLoption option, Value value) const {
        curl_easy_setopt(curl, option, value);
    }
};

namespace {

std::size_t takeBody(char* data, std::size_t size, std::size_t count, void* to) {
    auto& transfer = *static_cast<WebTransfer*>(to);
    const std::size_t bytes = size * count;
    if (transfer.body.size() + static_cast<qsizetype>(bytes) > transfer.limit) {
        return CURL_WRITEFUNC_ERROR;
    }
    transfer.body.append(data, static_cast<qsizetype>(bytes));
    return bytes;
}

std::size_t takeHeader(char* /*data*/, std::size_t size, std::size_t count, void* to) {
    auto& transfer = *static_cast<WebTransfer*>(to);
    const std::size_t bytes = size * count;
    transfer.bytesOfHeaders += static_cast<qsizetype>(bytes);
    const bool tooMuch = ++transfer.headers > headerLimit || transfer.bytesOfHeaders > headerBytes;
    return tooMuch ? CURL_WRITEFUNC_ERROR : bytes;
}

// Called before each request, that of a redirect too.
int permitRequest(void* of, char* /*remote*/, char* /*local*/, int /*remotePort*/,
                  int /*localPort*/) {
    auto& transfer = *static_cast<WebTransfer*>(of);
    const bool secure = !isHttp(transfer.curl);
    const bool permitted = secure || !transfer.wasSecure;
    transfer.wasSecure = secure;
    return permitted ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
}

// Those that the user or the system names; otherwise the library's default stays.
void useCertificates(WebTransfer& transfer) {
    const QByteArray file = qgetenv("SSL_CERT_FILE");
    const QByteArray folder =
        qEnvironmentVariable("SSL_CERT_DIR", QString::fromUtf8(certificateFolder())).toUtf8();
    if (!file.isEmpty() || !folder.isEmpty()) {
        transfer.set(CURLOPT_CAINFO, file.isEmpty() ? nullptr : file.constData());
        transfer.set(CURLOPT_CAPATH, folder.isEmpty() ? nullptr : folder.constData());
        transfer.certificates = {file, folder};
    }
}

} // namespace

WebLoad::WebLoad(const QUrl& url)
    : transfer_(std::make_unique<WebTransfer>()) {
    curl_global_init(CURL_GLOBAL_DEFAULT);
    WebTransfer& transfer = *transfer_;
    transfer.curl = curl_easy_init();
    if (transfer.curl == nullptr) {
        return;
    }
    const QByteArray address = url.toEncoded(QUrl::RemoveFragment);
    transfer.set(CURLOPT_URL, address.constData());
    transfer.fields = curl_slist_append(nullptr, "Accept: application/json");
    transfer.fields = curl_slist_append(transfer.fields, "Accept-Encoding: gzip, deflate");
    transfer.set(CURLOPT_HTTPHEADER, transfer.fields);
    transfer.set(CURLOPT_USERAGENT, "Morrowleaf");
    transfer.set(CURLOPT_PROTOCOLS_STR, "http,https");
    transfer.set(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    transfer.set(CURLOPT_FOLLOWLOCATION, 1L);
    transfer.set(CURLOPT_MAXREDIRS, redirectLimit);
    transfer.set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
    // A connection that is used again may break, and the request would be repeated.
    transfer.set(CURLOPT_FRESH_CONNECT, 1L);
    transfer.set(CURLOPT_FORBID_REUSE, 1L);
    transfer.set(CURLOPT_NOSIGNAL, 1L);
    transfer.set(CURLOPT_TIMEOUT_MS, timeout);
    transfer.set(CURLOPT_WRITEFUNCTION, takeBody);
    transfer.set(CURLOPT_WRITEDATA, transfer_.get());
    transfer.set(CURLOPT_HEADERFUNCTION, takeHeader);
    transfer.set(CURLOPT_HEADERDATA, transfer_.get());
    transfer.set(CURLOPT_PREREQFUNCTION, permitRequest);
    transfer.set(CURLOPT_PREREQDATA, transfer_.get());
    useCertificates(transfer);
    static constexpr std::array variables{"http_proxy", "https_proxy", "HTTPS_PROXY", "all_proxy",
                                          "ALL_PROXY",  "no_proxy",    "NO_PROXY"};
    if (std::none_of(variables.begin(), variables.end(), namesProxy)) {
        // The library asks the session, and might leave a door to it open.
        const QByteArray proxy = askApart([&address] { return desktopProxy(address); });
        transfer.set(CURLOPT_PROXY, proxy.constData());
    }
}

WebLoad::~WebLoad() {
    curl_easy_cleanup(transfer_->curl);
    curl_slist_free_all(transfer_->fields);
}

QList<QByteArray> WebLoad::certificates() const {
    return transfer_->certificates;
}

std::optional<QByteArray> WebLoad::run(qsizetype limit) {
    transfer_->limit = limit;
    if (transfer_->curl == nullptr || curl_easy_perform(transfer_->curl) != CURLE_OK) {
        return std::nullopt;
    }
    curl_header* encoding = nullptr;
    constexpr int last = -1; // the response after all redirects
    const bool encoded = curl_easy_header(transfer_->curl, "Content-Encoding", 0, CURLH_HEADER,
                                          last, &encoding) == CURLHE_OK;
    if (encoded && encoding->amount > 1) {
        return std::nullopt;
    }
    return unpack(transfer_->body, encoded ? QByteArray(encoding->value) : QByteArray(), limit);
}

} // namespace morrowleaf
