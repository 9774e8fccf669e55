// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>
#include <stop_token>

namespace morrowleaf {

// The decoded body that an http, https or data address answers with, whatever
// its status. std::nullopt if the load fails, the body is longer than `limit`
// bytes, or `stop` is requested meanwhile. Any thread but the main one: it runs
// an event loop of its own, and blocks as long as the resolver does.
[[nodiscard]] std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit,
                                                    const std::stop_token& stop);

// Whether an answer from `from` may send the load on to `to`: to the web only,
// and never from https down to http.
bool mayRedirect(const QUrl& from, const QUrl& to);

} // namespace morrowleaf
