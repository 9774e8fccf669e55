// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace morrowleaf {

// A photo that can be decoded. Contains no pixels.
struct Photo {
    QString path;

    // Decodes the picture so that it fills `target` (pixels): cropped about its centre,
    // upright, in sRGB, opaque (Format_RGB32, over black). Null on failure. May take
    // seconds. Any thread.
    QImage decodeFilling(QSize target) const;
};

// Inspects only the header of the photo at `path`. std::nullopt unless it is a regular
// file of a known format that can be decoded within the memory limit. Any thread.
[[nodiscard]] std::optional<Photo> inspectPhoto(const QString& path);

} // namespace morrowleaf
