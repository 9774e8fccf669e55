// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/placedpicture.h"

#include <algorithm>

namespace morrowleaf {

QRect deviceRect(const QRectF& points, double scale) {
    return QRectF(points.topLeft() * scale, points.size() * scale).toAlignedRect();
}

QImage unpaintedPicture(QSize size, std::vector<QRgb>& memory) {
    memory.resize(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));
    return {reinterpret_cast<uchar*>(memory.data()), size.width(), size.height(),
            qsizetype{4} * size.width(), QImage::Format_ARGB32_Premultiplied};
}

QImage transparentPicture(QSize size, std::vector<QRgb>& memory) {
    QImage picture = unpaintedPicture(size, memory);
    std::ranges::fill(memory, 0);
    return picture;
}

} // namespace morrowleaf
