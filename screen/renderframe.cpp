// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/renderframe.h"

#include <QPainter>

namespace morrowleaf {

QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001) {
    const QuoteViewState& state = view.state();
    QImage frame((state.size * state.devicePixelRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    if (frame.isNull()) {
        return frame;
    }
    frame.setDevicePixelRatio(state.devicePixelRatio);
    painter.paint(frame, frame.rect(), backdrop, since2001);
    QPainter text(&frame);
    view.paint(text, seconds, QRectF(QPointF(), state.size));
    return frame;
}

} // namespace morrowleaf
