// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stoptoken.h"

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace morrowleaf {

// Loads the decoded body of the response to an http, https or data request, whatever its
// status. std::nullopt if the load fails, the body is longer than `limit` bytes, or
// `stop` is requested meanwhile. Any thread but the main one: it runs an event loop, and
// blocks as long as the resolver does.
[[nodiscard]] std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit,
                                                    const StopToken& stop);

// Whether a response from `from` may redirect to `to`: only to http or https, and never
// from https to http.
bool mayRedirect(const QUrl& from, const QUrl& to);

} // namespace morrowleaf
