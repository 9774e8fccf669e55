// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/screen/goldenpictures.h"
#include "tools/sourcepath.h"

#include <QDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int block = 8;
constexpr int strayLevels = 24;

std::array<int, 3> channels(QRgb pixel) {
    return {qRed(pixel), qGreen(pixel), qBlue(pixel)};
}

double blockDifference(const QImage& a, const QImage& b, const QRect& part) {
    std::array<double, 3> sum{};
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const auto one = channels(a.pixel(x, y));
            const auto two = channels(b.pixel(x, y));
            for (size_t c = 0; c < 3; ++c) {
                sum[c] += one[c] - two[c];
            }
        }
    }
    double worst = 0;
    for (const double channel : sum) {
        worst = std::max(worst, std::abs(channel) / (part.width() * part.height()));
    }
    return worst;
}

// Whether a pixel is outside the range of the values around its place on record.
bool strays(const QImage& recorded, const QImage& picture, int x, int y) {
    const auto value = channels(picture.pixel(x, y));
    for (size_t c = 0; c < 3; ++c) {
        int least = 255;
        int most = 0;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                const QPoint at(std::clamp(x + dx, 0, recorded.width() - 1),
                                std::clamp(y + dy, 0, recorded.height() - 1));
                const int there = channels(recorded.pixel(at))[c];
                least = std::min(least, there);
                most = std::max(most, there);
            }
        }
        if (value[c] < least - strayLevels || value[c] > most + strayLevels) {
            return true;
        }
    }
    return false;
}

} // namespace

PictureDifference comparePictures(const QImage& recorded, const QImage& picture) {
    PictureDifference difference;
    if (recorded.isNull() || recorded.size() != picture.size()) {
        difference.sameSize = false;
        return difference;
    }
    const QImage a = recorded.convertToFormat(QImage::Format_RGB32);
    const QImage b = picture.convertToFormat(QImage::Format_RGB32);
    int stray = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (x % block == 0 && y % block == 0) {
                difference.worstBlock =
                    std::max(difference.worstBlock,
                             blockDifference(a, b, QRect(x, y, block, block) & a.rect()));
            }
            stray += strays(a, b, x, y) || strays(b, a, x, y) ? 1 : 0;
        }
    }
    difference.strayPixels = 1e4 * stray / (static_cast<double>(a.width()) * a.height());
    return difference;
}

QImage forRecord(const QImage& frame, int factor) {
    QImage plain = frame.convertToFormat(QImage::Format_RGB32);
    plain.setDevicePixelRatio(1);
    return plain.scaled(plain.size() / factor, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void expectGolden(const QString& file, const QImage& fresh) {
#ifdef __APPLE__
    GTEST_SKIP() << "another engine draws the letters here";
#endif
    const QString path = sourcePath(u"tests/golden/"_s + file);
    if (qEnvironmentVariableIsSet("MORROWLEAF_RECORD")) {
        fresh.save(path);
    }
    const PictureDifference difference = comparePictures(QImage(path), fresh);
    EXPECT_TRUE(difference.acceptable())
        << file.toStdString() << ": same size " << difference.sameSize << ", worst block "
        << difference.worstBlock << ", stray pixels " << difference.strayPixels;
    if (!difference.acceptable()) {
        const QString kept = QDir::temp().filePath(u"morrowleaf-golden-"_s + file);
        fresh.save(kept);
        ADD_FAILURE() << "the new picture is " << kept.toStdString();
    }
}

} // namespace morrowleaf
