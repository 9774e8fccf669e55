// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace morrowleaf {

// A photo that can be decoded: where it is, how large, and how. Its pixels
// belong to whoever shows it.
struct Photo {
    QString path;
    QSize size; // pixels, after orientation

    // Decodes (anywhere, may be slow) so that the picture fills `target`
    // pixels, cropped about its centre, upright, in sRGB, opaque (RGB32; what
    // is transparent becomes black); null when that fails.
    QImage decodeFilling(QSize target) const;
};

// The photo at `path` by its header alone; nothing unless it is a regular file
// of a known format that can be shown within the bounds on memory.
std::optional<Photo> inspectPhoto(const QString& path);

} // namespace morrowleaf
