// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace morrowleaf {

// Decodes any bytes (fewer than 2 GiB) as UTF-8 and never fails: each maximal
// subpart of an ill-formed sequence becomes one U+FFFD. A leading U+FEFF stays,
// which QString::fromUtf8 would drop.
QString decodeUtf8(QByteArrayView bytes);

// The UTF-8 bytes of a JSON text in UTF-8, UTF-16 or UTF-32, detected by its
// byte order mark or by the places of its first zero bytes; without the mark.
// std::nullopt if UTF-16 or UTF-32 is ill-formed (UTF-8 is not checked here).
// The view is of `body` or of `buffer`, whichever was needed.
[[nodiscard]] std::optional<QByteArrayView> jsonAsUtf8(QByteArrayView body, QByteArray& buffer);

} // namespace morrowleaf
