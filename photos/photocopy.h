// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <atomic>

namespace morrowleaf {

// Copies a regular file byte for byte to a new file; false, with nothing left
// at `destination`, when that fails or `cancelled` turns true on the way.
// Something that stands at `destination` already is left alone.
bool copyPhotoFile(const QString& source, const QString& destination,
                   const std::atomic<bool>& cancelled);

} // namespace morrowleaf
