// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <memory>
#include <optional>

namespace morrowleaf {

struct WebTransfer;

// One request to an http or https address. In two steps, because what the desktop says of
// its proxies must be asked before the process gives up its rights.
class WebLoad {
public:
    // Finds the proxy: that of the environment, or the desktop's. May block for long.
    explicit WebLoad(const QUrl& url);
    ~WebLoad();

    // The files and folders with the certificates to trust.
    QList<QByteArray> certificates() const;

    // Loads the decoded body of the response, whatever its status. std::nullopt if that
    // fails, or the body is longer than `limit` bytes before or after decompression. May
    // block for long in the resolver; meant for a process that is killed at its deadline.
    [[nodiscard]] std::optional<QByteArray> run(qsizetype limit);

private:
    std::unique_ptr<WebTransfer> transfer_;
};

} // namespace morrowleaf
