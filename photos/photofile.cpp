// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photofile.h"

#include "platform/files.h"

#include <QImageReader>
#include <QPixelFormat>
#include <QtNumeric>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace morrowleaf {
namespace {

// Pixels only: the cost of vector and page formats cannot be estimated, and their readers
// may start other programs.
bool isPixelFormat(const QByteArray& format) {
    static constexpr std::array known{"jpeg", "png",  "webp", "tiff", "bmp", "gif", "heif", "heic",
                                      "avif", "avci", "jxl",  "jp2",  "ico", "tga", "icns", "hdr",
                                      "exr",  "psd",  "qoi",  "ppm",  "pgm", "pbm", "dib"};
    return std::any_of(known.begin(), known.end(), [&](const char* k) { return format == k; });
}

// Markers of ITU-T T.81, table B.1.
constexpr quint8 startOfScan = 0xDA;

bool standsAlone(quint8 marker) {
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

bool startsFrame(quint8 marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool isSequential(quint8 frame) {
    return frame == 0xC0 || frame == 0xC1 || frame == 0xC9;
}

bool readByte(QIODevice& device, quint8& byte) {
    char c = 0;
    if (!device.getChar(&c)) {
        return false;
    }
    byte = static_cast<quint8>(c);
    return true;
}

bool nextMarker(QIODevice& device, quint8& marker) {
    quint8 byte = 0;
    while (readByte(device, byte)) {
        if (byte == 0xFF) {
            while (byte == 0xFF) {
                if (!readByte(device, byte)) {
                    return false;
                }
            }
            if (byte != 0) {
                marker = byte;
                return true;
            }
        }
    }
    return false;
}

bool hasManyScansFromHere(QIODevice& device) {
    int components = 0; // of the frame
    quint8 marker = 0;
    while (nextMarker(device, marker)) {
        if (standsAlone(marker)) {
            continue;
        }
        std::array<char, 2> length{};
        if (device.read(length.data(), 2) != 2) {
            return true;
        }
        const int rest = (static_cast<quint8>(length[0]) << 8 | static_cast<quint8>(length[1])) - 2;
        const qint64 end = device.pos() + rest;
        if (rest < 0) {
            return true;
        }
        if (startsFrame(marker)) {
            std::array<char, 6> frame{}; // precision, height, width, components
            if (device.read(frame.data(), 6) != 6) {
                return true;
            }
            components = static_cast<quint8>(frame[5]);
            if (!isSequential(marker)) {
                return true;
            }
        }
        if (marker == startOfScan) {
            quint8 inScan = 0;
            return !readByte(device, inScan) || components == 0 || inScan < components;
        }
        if (end > device.size() || !device.seek(end)) {
            return true;
        }
    }
    return true;
}

} // namespace

PhotoFile::PhotoFile(const QString& path, Bounds bounds)
    : deadline_(bounds.time)
    , bytesLeft_(bounds.bytes) {
    if (openRegularFile(file_, path)) {
        open(QIODevice::ReadOnly);
    }
}

bool PhotoFile::seek(qint64 pos) {
    return QIODevice::seek(pos) && file_.seek(pos);
}

qint64 PhotoFile::readData(char* data, qint64 maxSize) {
    if (deadline_.hasExpired() || bytesLeft_ <= 0) {
        exhausted_ = true;
        return -1;
    }
    const qint64 read = file_.read(data, qMin(maxSize, bytesLeft_));
    bytesLeft_ -= qMax<qint64>(read, 0);
    exhausted_ = bytesLeft_ <= 0;
    return read;
}

std::optional<PhotoHeader> readPhotoHeader(PhotoFile& file, QImageReader& reader) {
    if (!file.isOpen()) {
        return std::nullopt;
    }
    reader.setDecideFormatFromContent(true);
    reader.setDevice(&file);
    PhotoHeader header;
    header.format = reader.format();
    if (header.format == "jpg") {
        header.format = "jpeg";
    }
    if (!isPixelFormat(header.format)) {
        return std::nullopt;
    }
    const bool jpeg = header.format == "jpeg";
    const bool manyScans = jpeg && jpegHasManyScans(file);
    header.size = reader.size();
    if (header.size.isEmpty()) {
        return std::nullopt;
    }
    header.orientation = reader.transformation();
    const QImage::Format format = reader.imageFormat();
    if (format != QImage::Format_Invalid) {
        const int bits = QImage::toPixelFormat(format).bitsPerPixel();
        // Narrow pixels are converted to wide ones before scaling.
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
        // Some formats can declare so many pixels that the number of bytes overflows.
        qint64 whole = 0;
        const bool countless = qMulOverflow(area(header.size), header.bytesPerPixel, &whole) ||
                               qAddOverflow(whole, result, &whole);
        return countless ? std::numeric_limits<qint64>::max() : whole;
    }
    // A JPEG is decoded at an eighth, a quarter or half of its size if that suffices; one
    // with several scans is first held in memory as coefficients.
    const QSize crop = fillingCrop(header.size, target).size();
    const int ratio = std::min(crop.width() / target.width(), crop.height() / target.height());
    const int denominator = ratio < 2 ? 1 : ratio < 4 ? 2 : ratio < 8 ? 4 : 8;
    const qint64 read = area(crop) / (denominator * denominator) * 4;
    const qint64 coefficients = header.wholeInMemory ? area(header.size) * 3 * 2 : 0;
    return read + coefficients + result;
}

bool jpegHasManyScans(QIODevice& device) {
    const qint64 before = device.pos();
    device.seek(0);
    const bool many = hasManyScansFromHere(device);
    device.seek(before);
    return many;
}

} // namespace morrowleaf
