// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tools/contactsheet.h"

#include <QPainter>

#include <algorithm>

namespace morrowleaf {

namespace {

constexpr int gap = 12;
constexpr int captionHeight = 22;

} // namespace

QImage contactSheet(const QList<QImage>& pictures, const QStringList& captions, int columns,
                    int cellWidth) {
    QList<QImage> cells;
    int cellHeight = 1;
    for (QImage picture : pictures) {
        picture.setDevicePixelRatio(1);
        cells.append(picture.scaledToWidth(cellWidth, Qt::SmoothTransformation));
        cellHeight = std::max(cellHeight, cells.last().height());
    }
    const int across = std::max(1, std::min(columns, static_cast<int>(cells.size())));
    const int down = (static_cast<int>(cells.size()) + across - 1) / across;
    QImage sheet(across * (cellWidth + gap) + gap, down * (cellHeight + captionHeight + gap) + gap,
                 QImage::Format_RGB32);
    sheet.fill(0x808080);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < cells.size(); ++i) {
        const QPoint at(gap + i % across * (cellWidth + gap),
                        gap + i / across * (cellHeight + captionHeight + gap));
        painter.drawImage(at, cells[i]);
        painter.drawText(QRect(at.x(), at.y() + cellHeight, cellWidth, captionHeight),
                         Qt::AlignCenter, captions.value(i));
    }
    return sheet;
}

} // namespace morrowleaf
