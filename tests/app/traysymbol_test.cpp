// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/traysymbol.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

// The share of pixels that differ clearly from a panel of that brightness.
double legibleShare(const QIcon& symbol, int size, int panel) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(QColor(panel, panel, panel));
    QPainter painter(&image);
    painter.drawPixmap(0, 0, symbol.pixmap(QSize(size, size), 1.0));
    painter.end();
    constexpr int clearly = 75; // of 255
    int legible = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            legible += std::abs(qGray(image.pixel(x, y)) - panel) > clearly ? 1 : 0;
        }
    }
    return double(legible) / (size * size);
}

class TraySymbol : public testing::TestWithParam<QColor> {};

TEST_P(TraySymbol, IsLegibleOnAnyPanel) {
    const QIcon symbol = traySymbol(GetParam());
    for (const int size : {16, 22, 24, 32, 48}) {
        for (const int panel : {0, 40, 90, 128, 180, 230, 255}) {
            EXPECT_GT(legibleShare(symbol, size, panel), 0.12) << size << " on " << panel;
        }
    }
}

TEST_P(TraySymbol, HasItsColourInTheMiddle) {
    const QImage image = traySymbol(GetParam()).pixmap(QSize(24, 24), 1.0).toImage();
    int ownColour = 0;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            ownColour += image.pixelColor(x, y) == GetParam() ? 1 : 0;
        }
    }
    EXPECT_GT(ownColour, 20);
}

INSTANTIATE_TEST_SUITE_P(Colours, TraySymbol,
                         testing::Values(QColor(0x1d, 0x1d, 0x21), QColor(0xec, 0xec, 0xef)));

} // namespace
} // namespace morrowleaf
