// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/blurredlayer.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;

namespace {

// A direct convolution in double precision, to compare with.
std::vector<double> referenceBlur(const std::vector<double>& values, int width, int height,
                                  double sigma) {
    const int reach = static_cast<int>(std::ceil(5 * sigma));
    std::vector<double> kernel;
    double sum = 0;
    for (int i = -reach; i <= reach; ++i) {
        kernel.push_back(std::exp(-i * i / (2 * sigma * sigma)));
        sum += kernel.back();
    }
    const auto pass = [&](const std::vector<double>& from, int dx, int dy) {
        std::vector<double> to(from.size());
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                double mean = 0;
                for (int i = -reach; i <= reach; ++i) {
                    const int fx = x + i * dx;
                    const int fy = y + i * dy;
                    if (fx >= 0 && fy >= 0 && fx < width && fy < height) {
                        mean += kernel[static_cast<std::size_t>(i + reach)] / sum *
                                from[static_cast<std::size_t>(fy * width + fx)];
                    }
                }
                to[static_cast<std::size_t>(y * width + x)] = mean;
            }
        }
        return to;
    };
    return pass(pass(values, 1, 0), 0, 1);
}

QImage someLetters() {
    QImage picture(160, 48, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QRectF(4, 6, 30, 36));
    for (int x = 48; x < 150; x += 17) {
        painter.fillRect(QRectF(x, 4, 5.5, 40), Qt::black);
    }
    return picture;
}

TEST(BlurredLayer, IsCloseToTheGaussianAtEveryStrength) {
    const QImage letters = someLetters();
    for (const double sigma : {0.7, 1.5, 2.4, 3.0, 4.9, 6.0, 9.0, 14.0, 18.0, 26.0, 52.0}) {
        const int cell = BlurredLayer::cellSize(sigma);
        const BlurredLayer layer(reducedAlpha(letters, cell), {7, -3}, cell, sigma);
        const int halo = BlurredLayer::halo(sigma);
        const QRect rect = QRect({7, -3}, letters.size()).adjusted(-halo, -halo, halo, halo);
        EXPECT_TRUE(layer.rect().contains(rect));

        std::vector<double> values(static_cast<std::size_t>(rect.width() * rect.height()));
        for (int y = 0; y < letters.height(); ++y) {
            for (int x = 0; x < letters.width(); ++x) {
                values[static_cast<std::size_t>((y + halo) * rect.width() + x + halo)] =
                    qAlpha(letters.pixel(x, y));
            }
        }
        values = referenceBlur(values, rect.width(), rect.height(), sigma);
        std::vector<float> row;
        double worst = 0;
        double peak = 0;
        for (int y = 0; y < rect.height(); ++y) {
            layer.row(0, rect.top() + y, row);
            for (int x = 0; x < rect.width(); ++x) {
                const double wanted = values[static_cast<std::size_t>(y * rect.width() + x)];
                peak = std::max(peak, wanted);
                const auto at = static_cast<std::size_t>(rect.left() + x - layer.rect().left());
                worst = std::max(worst, std::abs(wanted - double{row[at]}));
            }
        }
        EXPECT_LT(worst, 0.03 * peak + 1) << "sigma " << sigma << ", peak " << peak;
    }
}

TEST(BlurredLayer, ResolutionFallsAsTheBlurGrows) {
    EXPECT_EQ(BlurredLayer::cellSize(1), 1);
    EXPECT_EQ(BlurredLayer::cellSize(4.9), 1);
    EXPECT_EQ(BlurredLayer::cellSize(5), 2);
    EXPECT_EQ(BlurredLayer::cellSize(26), 8);
    EXPECT_EQ(BlurredLayer::cellSize(52), 16);
}

} // namespace
