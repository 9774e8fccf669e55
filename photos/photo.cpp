// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photo.h"

#include "photos/photofile.h"

#include <QColorSpace>
#include <QImageReader>
#include <QPainter>
#include <QTransform>

#include <mutex>

namespace morrowleaf {
namespace {

// Far beyond any photo's header. Photos are inspected on the main thread, which must not
// read without a limit.
constexpr PhotoFile::Bounds headerBounds{std::chrono::seconds(2), Q_INT64_C(64) << 20};

// Pixels; used while the size to show is not known yet.
constexpr QSize largestShown(3840, 2160);

// Raises Qt's limit, which ignores the size at which a photo is decoded and would reject
// ordinary photos. decodeBytes() is checked before decoding instead.
void liftDecoderLimit() {
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(int(photoMemoryLimit >> 20)); });
}

QImage read(QImageReader& reader, const PhotoHeader& header, const QSize& target) {
    const QRect crop = fillingCrop(header.size, target);
    reader.setAutoTransform(false);
    if (header.format == "jpeg") {
        reader.setClipRect(crop);
        reader.setScaledSize(target);
        return reader.read();
    }
    const QImage whole = reader.read();
    if (whole.isNull()) {
        return {};
    }
    // The size in the header may be wrong.
    const QRect part = fillingCrop(whole.size(), target);
    return whole.copy(part).scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage opaque(QImage image) {
    if (!image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_RGB32);
        return image;
    }
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::black);
    QPainter(&flat).drawImage(0, 0, image);
    return flat;
}

QImage upright(const QImage& image, QImageIOHandler::Transformations orientation) {
    QImage result = image;
    if (orientation.testFlag(QImageIOHandler::TransformationMirror)) {
        result = result.mirrored(true, false);
    }
    if (orientation.testFlag(QImageIOHandler::TransformationFlip)) {
        result = result.mirrored(false, true);
    }
    if (orientation.testFlag(QImageIOHandler::TransformationRotate90)) {
        result = result.transformed(QTransform().rotate(90));
    }
    return result;
}

} // namespace

QImage Photo::decodeFilling(QSize target) const {
    if (target.isEmpty()) {
        return {};
    }
    liftDecoderLimit();
    PhotoFile file(path);
    QImageReader reader;
    const auto header = readPhotoHeader(file, reader);
    if (!header) {
        return {};
    }
    const bool turned = header->orientation.testFlag(QImageIOHandler::TransformationRotate90);
    const QSize stored = turned ? target.transposed() : target;
    if (decodeBytes(*header, stored) > photoMemoryLimit) {
        return {};
    }
    QImage image = read(reader, *header, stored);
    if (image.isNull() || file.exhausted()) {
        return {};
    }
    if (image.size() != stored) {
        image = image.scaled(stored, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    const QColorSpace space = image.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    image = upright(opaque(std::move(image)), header->orientation);
    image.setColorSpace({});
    return image;
}

std::optional<Photo> inspectPhoto(const QString& path) {
    PhotoFile file(path, headerBounds);
    QImageReader reader;
    const auto header = readPhotoHeader(file, reader);
    if (!header || decodeBytes(*header, largestShown) > photoMemoryLimit) {
        return std::nullopt;
    }
    return Photo{path};
}

} // namespace morrowleaf
