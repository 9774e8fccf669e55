// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photo.h"

#include <QColorSpace>
#include <QImageReader>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <array>

namespace morrowleaf {
namespace {

// What the header of a picture says.
struct PhotoHeader {
    QByteArray format; // "jpeg", "png", ...
    QSize size;        // pixels as stored, before orientation; empty if this is no picture
    QImageIOHandler::Transformations orientation = QImageIOHandler::TransformationNone;

    QSize stored(const QSize& upright) const {
        const bool turned = orientation.testFlag(QImageIOHandler::TransformationRotate90);
        return turned ? upright.transposed() : upright;
    }
};

// Pixels only: the cost of vector and page formats cannot be estimated, and their readers
// may start other programs.
bool isPixelFormat(const QByteArray& format) {
    static constexpr std::array known{"jpeg", "png",  "webp", "tiff", "bmp", "gif", "heif", "heic",
                                      "avif", "avci", "jxl",  "jp2",  "ico", "tga", "icns", "hdr",
                                      "exr",  "psd",  "qoi",  "ppm",  "pgm", "pbm", "dib"};
    return std::any_of(known.begin(), known.end(), [&](const char* k) { return format == k; });
}

PhotoHeader readHeader(QImageReader& reader, QIODevice& device) {
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    reader.setDevice(&device);
    PhotoHeader header;
    header.format = reader.format();
    if (header.format == "jpg") {
        header.format = "jpeg";
    }
    if (isPixelFormat(header.format)) {
        header.size = reader.size();
        header.orientation = reader.transformation();
    }
    return header;
}

QImage read(QImageReader& reader, const PhotoHeader& header, const QSize& target) {
    if (header.format == "jpeg") {
        reader.setClipRect(fillingCrop(header.size, target));
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

QRect fillingCrop(const QSize& stored, const QSize& target) {
    const double scale = std::min(double(stored.width()) / target.width(),
                                  double(stored.height()) / target.height());
    const QSize crop(std::clamp(qRound(target.width() * scale), 1, stored.width()),
                     std::clamp(qRound(target.height() * scale), 1, stored.height()));
    return {QPoint((stored.width() - crop.width()) / 2, (stored.height() - crop.height()) / 2),
            crop};
}

QSize readPhotoSize(QIODevice& device) {
    QImageReader reader;
    const PhotoHeader header = readHeader(reader, device);
    return header.size.isEmpty() ? QSize() : header.stored(header.size);
}

QImage decodePhoto(QIODevice& device, const QSize& target) {
    if (target.isEmpty()) {
        return {};
    }
    // Qt's own limit ignores the size at which a photo is decoded and would reject ordinary
    // photos.
    QImageReader::setAllocationLimit(int(photoMemoryLimit >> 20));
    QImageReader reader;
    const PhotoHeader header = readHeader(reader, device);
    if (header.size.isEmpty()) {
        return {};
    }
    const QSize stored = header.stored(target);
    QImage image = read(reader, header, stored);
    if (image.isNull()) {
        return {};
    }
    if (image.size() != stored) {
        image = image.scaled(stored, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    const QColorSpace space = image.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    image = upright(opaque(std::move(image)), header.orientation);
    image.setColorSpace({});
    return image;
}

} // namespace morrowleaf
