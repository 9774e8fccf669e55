#include "textanim/lettering.h"

#include "textanim/blurredlayer.h"
#include "textanim/paintoutline.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace morrowleaf {

namespace {

// Blur that no eye sees, in pixels.
constexpr double sharpBelow = 0.05;

QRectF scaled(const QRectF& rect, double scale) {
    return {rect.topLeft() * scale, rect.size() * scale};
}

QImage viewOf(std::vector<QRgb>& memory, QSize size) {
    return {reinterpret_cast<uchar*>(memory.data()), size.width(), size.height(),
            qsizetype{4} * size.width(), QImage::Format_ARGB32_Premultiplied};
}

// Its pixels are not set yet.
QImage unpainted(QSize size, std::vector<QRgb>& memory) {
    memory.resize(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));
    return viewOf(memory, size);
}

QImage transparent(QSize size, std::vector<QRgb>& memory) {
    QImage picture = unpainted(size, memory);
    std::ranges::fill(memory, 0);
    return picture;
}

// What brings the resting baseline onto whole pixels.
double baselineShift(const LineShapes& line, double scale) {
    const double baseline = line.text.baseline * scale;
    return std::round(baseline) - baseline;
}

// From points of the line to points on the screen.
QTransform placing(const LineShapes& line, const LineStage& stage) {
    const QPointF center(line.text.size.width() / 2, line.text.size.height() / 2);
    return QTransform::fromTranslate(-center.x(), -center.y()) *
           QTransform::fromScale(stage.values.scale, stage.values.scale) *
           QTransform::fromTranslate(center.x(), center.y() + stage.values.offset);
}

// From points of the line to cells of that many device pixels.
QTransform onDevice(const LineShapes& line, const LineStage& stage, double scale, int cell) {
    return placing(line, stage) * QTransform::fromScale(scale, scale) *
           QTransform::fromTranslate(0, baselineShift(line, scale)) *
           QTransform::fromScale(1.0 / cell, 1.0 / cell);
}

QRect deviceRect(const QRectF& points, double scale) {
    return scaled(points, scale).toAlignedRect();
}

QImage plainLetters(const LineShapes& line, const LineStage& stage, const QTransform& transform,
                    QRect rect, const QColor& color, std::vector<QRgb>& memory) {
    QImage picture = transparent(rect.size(), memory);
    QPainter painter(&picture);
    painter.setTransform(transform * QTransform::fromTranslate(-rect.x(), -rect.y()));
    paintTyped(painter, line.text, stage.typed, color);
    return picture;
}

// Raises what the pen drew over the ink, both in one colour.
void drawPen(QImage& letters, const QImage& pen, QPoint at, const QColor& color) {
    const QRgb ink = qPremultiply(color.rgba());
    for (int y = 0; y < pen.height(); ++y) {
        const uchar* coverage = pen.constScanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(letters.scanLine(y + at.y())) + at.x();
        for (int x = 0; x < pen.width(); ++x) {
            if (coverage[x] == 0) {
                continue;
            }
            const unsigned room = 255 - qAlpha(pixels[x]);
            const unsigned share = (coverage[x] * room + 127) / 255;
            const auto part = [share](int channel) {
                return (static_cast<unsigned>(channel) * share + 127) / 255;
            };
            pixels[x] += part(qBlue(ink)) | part(qGreen(ink)) << 8 | part(qRed(ink)) << 16 |
                         part(qAlpha(ink)) << 24;
        }
    }
}

QImage writtenLetters(const LineShapes& line, const LineStage& stage, double scale, QRect rect,
                      const QColor& color, LineCanvas& canvas) {
    QImage picture = transparent(rect.size(), canvas.letters);
    std::optional<PenDrawing>& pen = canvas.pen;
    if (!pen || pen->scale() != scale || pen->rect() != rect) {
        pen.emplace(scale, line.penWidth, rect, baselineShift(line, scale));
        canvas.ink.clear();
    }
    if (stage.values.ink > 0) {
        if (canvas.ink.empty()) {
            plainLetters(line, stage, onDevice(line, stage, scale, 1), rect, color, canvas.ink);
        }
        QPainter painter(&picture);
        painter.setOpacity(stage.values.ink);
        painter.drawImage(0, 0, viewOf(canvas.ink, rect.size()));
    }
    drawPen(picture, pen->at(line.trace, line.trace.length * stage.values.traced), {}, color);
    return picture;
}

// Turns values into bytes of a channel that is still 0. The same threshold in
// all channels keeps each below its alpha.
void writeChannel(const float* values, float factor, const std::vector<float>& dither, int shift,
                  QRgb* pixels) {
    const auto count = static_cast<int>(dither.size());
    const float* threshold = dither.data();
    for (int x = 0; x < count; ++x) {
        const float value = std::min(values[x] * factor + threshold[x], 255.0F);
        pixels[x] |= static_cast<QRgb>(static_cast<int>(value)) << shift;
    }
}

// The thresholds of eight rows, after which they repeat.
std::array<std::vector<float>, 8> ditherRows(int left, int width) {
    std::array<std::vector<float>, 8> rows;
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < width; ++x) {
            rows[static_cast<std::size_t>(y)].push_back(ditherAt(left + x, y));
        }
    }
    return rows;
}

// Sets every pixel of `to`. A layer without colours of its own takes `color`.
void writePixels(const BlurredLayer& layer, bool colored, const QColor& color, double opacity,
                 QImage& to, QPoint origin) {
    const QRect shown = layer.rect() & QRect(origin, to.size());
    const std::array<std::vector<float>, 8> dither = ditherRows(shown.left(), shown.width());
    const std::array<float, 4> parts{color.blueF(), color.greenF(), color.redF(), 1.0F};
    const auto skipped = static_cast<std::size_t>(shown.left() - layer.rect().left());
    std::vector<float> values;
    for (int y = origin.y(); y < origin.y() + to.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(to.scanLine(y - origin.y()));
        std::fill_n(line, to.width(), 0U);
        if (y < shown.top() || y > shown.bottom()) {
            continue;
        }
        QRgb* pixels = line + (shown.left() - origin.x());
        if (!colored) {
            layer.row(0, y, values);
        }
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (colored) {
                layer.row(i, y, values);
            }
            const float factor = static_cast<float>(opacity) * (colored ? 1.0F : parts[i]);
            if (factor > 0) {
                writeChannel(values.data() + skipped, factor,
                             dither[static_cast<std::size_t>(y & 7)], 8 * static_cast<int>(i),
                             pixels);
            }
        }
    }
}

PlacedPicture blurredLetters(const LineShapes& line, const LineStage& stage, double scale,
                             QRect rect, const QColor& color, double sigma, LineCanvas& canvas) {
    const int cell = BlurredLayer::cellSize(sigma);
    // The sharp letters, drawn small at once.
    LineStage sharp = stage;
    sharp.values.blurRadius = 0;
    const QRect box = deviceRect(letterRect(line, sharp), scale);
    const QPoint corner(static_cast<int>(std::floor(static_cast<double>(box.left()) / cell)),
                        static_cast<int>(std::floor(static_cast<double>(box.top()) / cell)));
    const QSize cells(box.right() / cell - corner.x() + 2, box.bottom() / cell - corner.y() + 2);
    const bool colored = line.text.hasPictures;
    const QImage small =
        plainLetters(line, sharp, onDevice(line, sharp, scale, cell), {corner, cells},
                     colored ? color : QColor(Qt::black), canvas.letters);
    const BlurredLayer layer(
        small, corner * cell, cell, sigma,
        colored ? std::vector{Channel::Blue, Channel::Green, Channel::Red, Channel::Alpha}
                : std::vector{Channel::Alpha});
    PlacedPicture result{unpainted(rect.size(), canvas.letters), rect.topLeft()};
    writePixels(layer, colored, color, stage.values.opacity * (colored ? 1 : color.alphaF()),
                result.picture, result.origin);
    return result;
}

PlacedPicture letters(const LineShapes& line, const LineStage& stage, double scale,
                      const QColor& color, LineCanvas& canvas) {
    const QRect rect = deviceRect(letterRect(line, stage), scale);
    if (!line.trace.stretches.empty()) {
        return {writtenLetters(line, stage, scale, rect, color, canvas), rect.topLeft()};
    }
    const double sigma = stage.values.blurRadius * stage.values.scale * scale;
    if (sigma > sharpBelow) {
        return blurredLetters(line, stage, scale, rect, color, sigma, canvas);
    }
    PlacedPicture result{
        plainLetters(line, stage, onDevice(line, stage, scale, 1), rect, color, canvas.letters),
        rect.topLeft()};
    if (stage.values.opacity < 1) {
        QPainter painter(&result.picture);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(result.picture.rect(),
                         QColor::fromRgbF(0, 0, 0, static_cast<float>(stage.values.opacity)));
    }
    return result;
}

} // namespace

QRectF letterRect(const LineShapes& line, const LineStage& stage) {
    if (line.text.ink.isEmpty()) {
        return {};
    }
    const double margin = line.penWidth / 2 + 1;
    const QRectF ink =
        placing(line, stage).mapRect(line.text.ink.adjusted(-margin, -margin, margin, margin));
    const double halo = 3 * stage.values.blurRadius * stage.values.scale;
    return ink.adjusted(-halo, -halo, halo, halo);
}

QRectF lineRect(const LineShapes& line, const LineStage& stage, const LineShadow& shadow) {
    const QRectF own = letterRect(line, stage);
    if (own.isEmpty() || shadow.opacity <= 0) {
        return own;
    }
    const double halo = 3 * shadow.radius;
    return own | own.translated(shadow.offset).adjusted(-halo, -halo, halo, halo);
}

PlacedPicture lineFrame(const LineShapes& line, const LineStage& stage, double scale,
                        const QColor& color, const LineShadow& shadow, LineCanvas& canvas) {
    PlacedPicture own = letters(line, stage, scale, color, canvas);
    if (shadow.opacity <= 0) {
        return own;
    }
    const QRect rect = deviceRect(lineRect(line, stage, shadow), scale);
    PlacedPicture result{unpainted(rect.size(), canvas.frame), rect.topLeft()};
    const double sigma = shadow.radius * scale;
    const int cell = BlurredLayer::cellSize(sigma);
    const QPoint offset = (shadow.offset * scale).toPoint();
    const BlurredLayer layer(reducedAlpha(own.picture, cell), own.origin + offset, cell, sigma);
    writePixels(layer, false, Qt::black, shadow.opacity, result.picture, result.origin);
    QPainter painter(&result.picture);
    painter.drawImage(own.origin - result.origin, own.picture);
    painter.end();
    return result;
}

} // namespace morrowleaf
