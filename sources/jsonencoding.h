// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace morrowleaf {

// The UTF-8 bytes of a JSON text that may also stand in UTF-16 or UTF-32, told
// by its byte order mark or by where its first zero bytes are; without the
// mark. Nothing if what is not UTF-8 is ill-formed (UTF-8 itself is not
// checked here). The view is of `body` or of `buffer`, whichever was needed.
std::optional<QByteArrayView> jsonAsUtf8(QByteArrayView body, QByteArray& buffer);

} // namespace morrowleaf
