// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoplan.h"

#include "photos/jpegscans.h"
#include "photos/photodevice.h"

#include <QImageReader>
#include <QPixelFormat>
#include <QtNumeric>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace morrowleaf {
namespace {

// Pixels only: no vector or page formats, whose cost cannot be told and whose
// readers may start other programs.
bool isPixelFormat(const QByteArray& format) {
    static constexpr std::array known{"jpeg", "png",  "webp", "tiff", "bmp", "gif", "heif", "heic",
                                      "avif", "avci", "jxl",  "jp2",  "ico", "tga", "icns", "hdr",
                                      "exr",  "psd",  "qoi",  "ppm",  "pgm", "pbm", "dib"};
    return std::any_of(known.begin(), known.end(), [&](const char* k) { return format == k; });
}

} // namespace

QSize PhotoHeader::uprightSize() const {
    return orientation.testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed() : size;
}

std::optional<PhotoHeader> readPhotoHeader(PhotoDevice& device, QImageReader& reader) {
    if (!device.isOpen()) {
        return std::nullopt;
    }
    reader.setDecideFormatFromContent(true);
    reader.setDevice(&device);
    PhotoHeader header;
    header.format = reader.format();
    if (header.format == "jpg") {
        header.format = "jpeg";
    }
    if (!isPixelFormat(header.format)) {
        return std::nullopt;
    }
    const bool jpeg = header.format == "jpeg";
    const bool manyScans = jpeg && jpegHasManyScans(device);
    header.size = reader.size();
    if (header.size.isEmpty()) {
        return std::nullopt;
    }
    header.orientation = reader.transformation();
    const QImage::Format format = reader.imageFormat();
    if (format != QImage::Format_Invalid) {
        const int bits = QImage::toPixelFormat(format).bitsPerPixel();
        // Scaling turns narrow pixels into wide ones first.
        header.bytesPerPixel = bits >= 32 ? bits / 8 : 4 + (bits + 7) / 8;
    }
    header.wholeInMemory = !jpeg || manyScans;
    return header;
}

QRect fillingCrop(const QSize& stored, const QSize& target) {
    const double scale = std::min(double(stored.width()) / target.width(),
                                  double(stored.height()) / target.height());
    const QSize crop(std::clamp(qRound(target.width() * scale), 1, stored.width()),
                     std::clamp(qRound(target.height() * scale), 1, stored.height()));
    return {QPoint((stored.width() - crop.width()) / 2, (stored.height() - crop.height()) / 2),
            crop};
}

qint64 decodeBytes(const PhotoHeader& header, const QSize& target) {
    const auto area = [](const QSize& s) { return qint64(s.width()) * s.height(); };
    const qint64 result = area(target) * 4;
    if (header.format != "jpeg") {
        // Some headers have room for more pixels than 64 bits have for their bytes.
        qint64 whole = 0;
        const bool countless = qMulOverflow(area(header.size), header.bytesPerPixel, &whole) ||
                               qAddOverflow(whole, result, &whole);
        return countless ? std::numeric_limits<qint64>::max() : whole;
    }
    // A JPEG is read at an eighth, a quarter or half of its size where that
    // suffices; one in several scans is first held whole, as coefficients.
    const QSize crop = fillingCrop(header.size, target).size();
    const int ratio = std::min(crop.width() / target.width(), crop.height() / target.height());
    const int denominator = ratio < 2 ? 1 : ratio < 4 ? 2 : ratio < 8 ? 4 : 8;
    const qint64 read = area(crop) / (denominator * denominator) * 4;
    const qint64 coefficients = header.wholeInMemory ? area(header.size) * 3 * 2 : 0;
    return read + coefficients + result;
}

} // namespace morrowleaf
