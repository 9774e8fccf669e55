// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

namespace morrowleaf {

// Reads any bytes as UTF-8 and never fails: each maximal piece of an
// ill-formed sequence becomes one U+FFFD. Nothing is dropped; a leading
// U+FEFF stays, which QString::fromUtf8 would swallow.
QString decodeUtf8(QByteArrayView bytes);

} // namespace morrowleaf
