// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace morrowleaf {

// Decodes any bytes (fewer than 2 GiB) as UTF-8 and never fails: each maximal subpart of
// an ill-formed sequence becomes one U+FFFD. Keeps a leading U+FEFF, unlike
// QString::fromUtf8(). Any thread.
QString decodeUtf8(QByteArrayView bytes);

// Converts a JSON text in UTF-8, UTF-16 or UTF-32 to UTF-8 without a byte order mark.
// Detects the encoding by the mark or by the positions of the zero bytes among the first
// four. std::nullopt if UTF-16 or UTF-32 is ill-formed (UTF-8 is not checked here). The
// result refers to `body` or `buffer`. Any thread.
[[nodiscard]] std::optional<QByteArrayView> jsonAsUtf8(QByteArrayView body, QByteArray& buffer);

} // namespace morrowleaf
