// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/readers.h"

#include <QImage>
#include <QSize>

#include <functional>

namespace morrowleaf {

// Reads photos, whoever made them: each in a process of its own, which is killed after
// 20 seconds. At most two run at the same time, and the newest wish is next. Nothing here
// opens a file. Main thread.
class PhotoReaders {
public:
    // `reader` is the path of the program that reads a photo.
    explicit PhotoReaders(const QString& reader = readerPath(QStringLiteral("photoreader")));

    // Decodes the photo at the absolute `path` so that it fills `size` (pixels): cropped
    // about its centre, upright, in sRGB, opaque (Format_RGB32). Calls `done` at most once,
    // later, on this thread, with a null image on failure.
    [[nodiscard]] Reading decode(const QString& path, const QSize& size,
                                 std::function<void(const QImage&)> done);
    // Reads only the header. Calls `done` as above, with the size in pixels, upright; an
    // empty size on failure.
    [[nodiscard]] Reading inspect(const QString& path, std::function<void(const QSize&)> done);

private:
    Readers readers_;
};

} // namespace morrowleaf
