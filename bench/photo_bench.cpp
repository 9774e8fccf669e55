// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Measures time and peak memory of decoding a 48-megapixel JPEG for 1920 × 1080
// pixels, and the time of a thumbnail and of reading the header.

#include "photos/photo.h"
#include "photos/photoreaders.h"

#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cmath>
#include <malloc.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize photoSize(8000, 6000);
constexpr QSize shownSize(1920, 1080);

// A field of /proc/self/status in kilobytes; 0 on systems without that file.
qint64 statusKilobytes(const QByteArray& name) {
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith(name + ':')) {
                return line.mid(name.size() + 1).simplified().split(' ').value(0).toLongLong();
            }
        }
    }
    return 0;
}

qint64 residentKilobytes() {
    return statusKilobytes("VmRSS");
}

qint64 peakKilobytes() {
    return statusKilobytes("VmHWM");
}

// Returns freed memory to the system and resets the peak.
void forgetPeak() {
    malloc_trim(0);
    QFile refs(u"/proc/self/clear_refs"_s);
    if (refs.open(QIODevice::WriteOnly)) {
        refs.write("5");
    }
}

const QString& largePhoto() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        QString file = folder.filePath(u"large.jpg"_s);
        QImage image(photoSize, QImage::Format_RGB888);
        for (int y = 0; y < image.height(); ++y) {
            uchar* row = image.scanLine(y);
            for (int x = 0; x < image.width(); ++x) {
                row[3 * x] = uchar(x ^ (y * 3));
                row[3 * x + 1] = uchar(128 + 100 * std::sin(x * 0.01));
                row[3 * x + 2] = uchar((x * y) >> 12);
            }
        }
        image.save(file, "jpg", 85);
        return file;
    }();
    return path;
}

QImage decode(QSize size) {
    QImage result;
    QEventLoop loop;
    PhotoReaders readers;
    const Reading reading = readers.decode(largePhoto(), size, [&](const QImage& image) {
        result = image;
        loop.quit();
    });
    loop.exec();
    return result;
}

void decodeLargePhoto(benchmark::State& state) {
    largePhoto();
    forgetPeak();
    const qint64 before = residentKilobytes();
    for ([[maybe_unused]] auto _ : state) {
        const QImage image = decode(shownSize);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["peak_MiB_above_idle"] = double(peakKilobytes() - before) / 1024;
}

// The same without a process of its own, for comparison.
void decodeLargePhotoHere(benchmark::State& state) {
    largePhoto();
    forgetPeak();
    const qint64 before = residentKilobytes();
    for ([[maybe_unused]] auto _ : state) {
        QFile file(largePhoto());
        const QImage image =
            file.open(QIODevice::ReadOnly) ? decodePhoto(file, shownSize) : QImage();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.counters["peak_MiB_above_idle"] = double(peakKilobytes() - before) / 1024;
}

void decodeTile(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(decode({88, 38}).constBits());
    }
}

void readHeader(benchmark::State& state) {
    PhotoReaders readers;
    for ([[maybe_unused]] auto _ : state) {
        QEventLoop loop;
        const Reading reading = readers.inspect(largePhoto(), [&](const QSize&) { loop.quit(); });
        loop.exec();
    }
}

BENCHMARK(decodeLargePhoto)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeLargePhotoHere)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeTile)->Unit(benchmark::kMillisecond);
BENCHMARK(readHeader)->Unit(benchmark::kMicrosecond);

} // namespace
