// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QIODevice;

namespace morrowleaf {

// Whether the JPEG at the device's start comes in several scans (progressive,
// or one component after the other), so that a decoder must hold all of it at
// once; true also when that cannot be told. Leaves the position as it was.
bool jpegHasManyScans(QIODevice& device);

} // namespace morrowleaf
