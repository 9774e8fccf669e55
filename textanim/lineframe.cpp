#include "textanim/lineframe.h"

#include "textanim/blurredlayer.h"
#include "textanim/paintoutline.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// Blur that no eye sees, in pixels.
constexpr double sharpBelow = 0.05;

QRectF scaled(const QRectF& rect, double scale) {
    return {rect.topLeft() * scale, rect.size() * scale};
}

QImage transparent(QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
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
                    QRect rect, const QColor& color) {
    QImage picture = transparent(rect.size());
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
                      const QColor& color, std::optional<PenDrawing>& pen) {
    QImage picture = transparent(rect.size());
    if (stage.values.ink > 0) {
        QImage ink = plainLetters(line, stage, onDevice(line, stage, scale, 1), rect, color);
        QPainter painter(&picture);
        painter.setOpacity(stage.values.ink);
        painter.drawImage(0, 0, ink);
    }
    if (!pen || pen->scale() != scale || pen->rect() != rect) {
        pen.emplace(scale, line.penWidth, rect, baselineShift(line, scale));
    }
    drawPen(picture, pen->at(line.trace, line.trace.length * stage.values.traced), {}, color);
    return picture;
}

void writePixels(const BlurredLayer& layer, bool colored, const QColor& color, double opacity,
                 QImage& to, QPoint origin) {
    const int width = to.width();
    std::vector<float> channel;
    const auto strength = static_cast<float>(opacity);
    const std::array<float, 4> parts =
        colored ? std::array{1.0F, 1.0F, 1.0F, 1.0F}
                : std::array{color.blueF(), color.greenF(), color.redF(), 1.0F};
    std::array<float, 8> dither{};
    const QRect rows = layer.rect() & QRect(origin, to.size());
    for (int y = rows.top(); y <= rows.bottom(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(to.scanLine(y - origin.y()));
        for (int i = 0; i < 8; ++i) {
            dither[static_cast<std::size_t>(i)] = ditherAt(origin.x() + i, y);
        }
        for (int i = 0; i < 4; ++i) {
            if (!colored && i > 0 && i < 3 && parts[static_cast<std::size_t>(i)] == parts[0] &&
                parts[0] == 0) {
                continue;
            }
            if (colored || i == 0) {
                layer.row(colored ? static_cast<std::size_t>(i) : 0, y, origin.x(), width, channel);
            }
            const float factor = strength * parts[static_cast<std::size_t>(i)];
            if (factor == 0) {
                continue;
            }
            const int shift = 8 * i;
            for (int x = 0; x < width; ++x) {
                // The same threshold in all channels keeps each below its alpha.
                const float value = channel[static_cast<std::size_t>(x)] * factor +
                                    dither[static_cast<std::size_t>(x & 7)];
                pixels[x] |= static_cast<QRgb>(std::clamp(static_cast<int>(value), 0, 255))
                             << shift;
            }
        }
    }
}

PlacedPicture blurredLetters(const LineShapes& line, const LineStage& stage, double scale,
                             QRect rect, const QColor& color, double sigma) {
    const int cell = BlurredLayer::cellSize(sigma);
    // The sharp letters, drawn small at once.
    LineStage sharp = stage;
    sharp.values.blurRadius = 0;
    const QRect box = deviceRect(letterRect(line, sharp), scale);
    const QPoint corner(static_cast<int>(std::floor(static_cast<double>(box.left()) / cell)),
                        static_cast<int>(std::floor(static_cast<double>(box.top()) / cell)));
    const QSize cells(box.right() / cell - corner.x() + 2, box.bottom() / cell - corner.y() + 2);
    const bool colored = line.text.hasPictures;
    const QImage small = plainLetters(line, sharp, onDevice(line, sharp, scale, cell),
                                      {corner, cells}, colored ? color : QColor(Qt::black));
    const BlurredLayer layer(
        small, corner * cell, cell, sigma,
        colored ? std::vector{Channel::Blue, Channel::Green, Channel::Red, Channel::Alpha}
                : std::vector{Channel::Alpha});
    PlacedPicture result{transparent(rect.size()), rect.topLeft()};
    writePixels(layer, colored, color, stage.values.opacity * (colored ? 1 : color.alphaF()),
                result.picture, result.origin);
    return result;
}

PlacedPicture letters(const LineShapes& line, const LineStage& stage, double scale,
                      const QColor& color, std::optional<PenDrawing>& pen) {
    const QRect rect = deviceRect(letterRect(line, stage), scale);
    if (!line.trace.stretches.empty()) {
        return {writtenLetters(line, stage, scale, rect, color, pen), rect.topLeft()};
    }
    const double sigma = stage.values.blurRadius * stage.values.scale * scale;
    if (sigma > sharpBelow) {
        return blurredLetters(line, stage, scale, rect, color, sigma);
    }
    PlacedPicture result{plainLetters(line, stage, onDevice(line, stage, scale, 1), rect, color),
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
                        const QColor& color, const LineShadow& shadow,
                        std::optional<PenDrawing>& pen) {
    const PlacedPicture own = letters(line, stage, scale, color, pen);
    if (shadow.opacity <= 0) {
        return own;
    }
    const QRect rect = deviceRect(lineRect(line, stage, shadow), scale);
    PlacedPicture result{transparent(rect.size()), rect.topLeft()};
    const double sigma = shadow.radius * scale;
    const int cell = BlurredLayer::cellSize(sigma);
    const QPoint offset = (shadow.offset * scale).toPoint();
    const BlurredLayer layer(reduced(own.picture, cell), own.origin + offset, cell, sigma,
                             {Channel::Alpha});
    writePixels(layer, false, Qt::black, shadow.opacity, result.picture, result.origin);
    QPainter painter(&result.picture);
    painter.drawImage(own.origin - result.origin, own.picture);
    painter.end();
    return result;
}

} // namespace morrowleaf
