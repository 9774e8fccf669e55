// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace morrowleaf {

// The decoded body that an http, https or data address answers with, whatever
// its status; nothing if the load fails or the body is longer than `limit`
// bytes. Blocks; to be called in a QThread of its own, whose quit() ends it.
std::optional<QByteArray> loadFromWeb(const QUrl& url, qsizetype limit);

// Whether an answer from `from` may send the load on to `to`: to the web only,
// and never from https down to http.
bool mayRedirect(const QUrl& from, const QUrl& to);

} // namespace morrowleaf
