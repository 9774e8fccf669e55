// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QFile>
#include <QIODevice>
#include <QImageIOHandler>
#include <QRect>
#include <QSize>

#include <chrono>
#include <optional>

class QImageReader;

namespace morrowleaf {

// A regular file as image decoders see it: its input ends after a time and a number of
// bytes, so that no file can occupy a decoder for ever. It is not a QFile, so that no
// decoder maps it into memory.
class PhotoFile : public QIODevice {
    Q_OBJECT

public:
    struct Bounds {
        std::chrono::milliseconds time = std::chrono::seconds(10);
        qint64 bytes = Q_INT64_C(4) << 30; // read in total, including repeated reads
    };
    // Open unless there is no regular file at `path` or it may not be read.
    explicit PhotoFile(const QString& path)
        : PhotoFile(path, Bounds{}) {}
    PhotoFile(const QString& path, Bounds bounds);

    bool exhausted() const { return exhausted_; } // a bound ended the input

    qint64 size() const override { return file_.size(); }
    bool seek(qint64 pos) override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QFile file_;
    QDeadlineTimer deadline_;
    qint64 bytesLeft_;
    bool exhausted_ = false;
};

// What the header of a picture file says.
struct PhotoHeader {
    QByteArray format; // "jpeg", "png", ...
    QSize size;        // pixels as stored, before orientation
    QImageIOHandler::Transformations orientation = QImageIOHandler::TransformationNone;
    qint64 bytesPerPixel = 4;  // of the decoded picture
    bool wholeInMemory = true; // the decoder needs the whole picture in memory
};

// Reads the header and prepares `reader` for decoding. std::nullopt for files that are
// not pictures and for formats that are documents rather than pixels. Any thread.
[[nodiscard]] std::optional<PhotoHeader> readPhotoHeader(PhotoFile& file, QImageReader& reader);

// Whether the JPEG at the device's start has several scans (progressive, or one per
// component), so that a decoder must hold all of it in memory; true also if that cannot
// be determined. Restores the position.
bool jpegHasManyScans(QIODevice& device);

inline constexpr qint64 photoMemoryLimit = Q_INT64_C(512) << 20; // bytes

// The part of a stored picture, about its centre, with the aspect ratio of `target`
// (pixels).
QRect fillingCrop(const QSize& stored, const QSize& target);

// Estimates the bytes of memory needed to decode a picture that fills `target` (pixels,
// in the stored orientation).
qint64 decodeBytes(const PhotoHeader& header, const QSize& target);

} // namespace morrowleaf
