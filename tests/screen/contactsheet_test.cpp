// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "screen/quoteview.h"
#include "tests/screen/goldenpictures.h"
#include "tests/screen/sceneforscreens.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int frames = 8;
constexpr int columns = 2;

// One line of the quotation at eight instants of its entrance, in the order of
// reading, on the middle colour of its palette.
struct Sheet {
    const char* name;
    TextAnim style;
    const char* text;
    const char* fontName;
    int palette;
    double ratio;
};

std::array<double, frames> instants(const RevealLine& line) {
    std::array<double, frames> at{};
    // The first shows the beginning, the last the line at rest.
    constexpr std::array<double, frames> shares{0.04, 0.15, 0.3, 0.45, 0.6, 0.75, 0.97, 1};
    for (std::size_t i = 0; i < frames; ++i) {
        at[i] = line.delay() + shares[i] * (line.settledAfter() - line.delay());
    }
    return at;
}

RevealLine lineFor(const Sheet& sheet) {
    const TextFont font = quoteFont(shippedFonts(), QString::fromUtf8(sheet.fontName), 30);
    const Palette& palette = Palette::all()[static_cast<std::size_t>(sheet.palette)];
    return RevealLine({QString::fromUtf8(sheet.text),
                       0,
                       sheet.style,
                       font,
                       font,
                       palette.ink,
                       {palette.light ? 0.08 : 0.35, 24, {0, 6}},
                       0});
}

// A deliberate fault in the drawing.
struct Fault {
    double moved = 0; // points downwards
    double opacity = 1;
};

QImage draw(const Sheet& sheet, const Fault& fault = {}) {
    const RevealLine line = lineFor(sheet);
    const QSizeF cell = (line.size() + QSizeF(60, 70)).toSize();
    QImage picture(
        (QSizeF(cell.width() * columns, cell.height() * frames / columns) * sheet.ratio).toSize(),
        QImage::Format_RGB32);
    picture.setDevicePixelRatio(sheet.ratio);
    picture.fill(Palette::all()[static_cast<std::size_t>(sheet.palette)].colors[4]);
    QPainter painter(&picture);
    int i = 0;
    for (const double at : instants(line)) {
        const int row = i / columns;
        const QPointF corner(i % columns * cell.width(), row * cell.height());
        painter.setClipRect(QRectF(corner, cell));
        painter.setOpacity(fault.opacity);
        line.paint(painter, corner + QPointF(30, 25 + fault.moved), at);
        ++i;
    }
    painter.end();
    picture.setDevicePixelRatio(1);
    return picture;
}

constexpr const char* english = "Waste no time arguing";

constexpr std::array sheets{
    Sheet{"fade", TextAnim::Fade, english, "fraunces", 0, 1},
    Sheet{"handwrite", TextAnim::Handwrite, english, "fraunces", 0, 1},
    Sheet{"typewriter", TextAnim::Typewriter, english, "fraunces", 0, 1},
    Sheet{"rise", TextAnim::Rise, english, "fraunces", 0, 1},
    Sheet{"blur", TextAnim::Blur, english, "fraunces", 0, 1},
    // The other faces that the program brings along, with their own scripts.
    Sheet{"serif-greek-paper", TextAnim::Fade, "Οὐδὲν ἐν τῷ βίῳ", "serif", 7, 1.25},
    Sheet{"rounded-cyrillic", TextAnim::Rise, "Тише едешь", "rounded", 4, 1.25},
    Sheet{"sans-paper", TextAnim::Handwrite, "Ничего лишнего", "sans", 7, 2},
    Sheet{"mono", TextAnim::Typewriter, "Слово офис", "mono", 2, 2},
};

} // namespace

class ContactSheet : public testing::TestWithParam<Sheet> {};

INSTANTIATE_TEST_SUITE_P(Golden, ContactSheet, testing::ValuesIn(sheets), [](const auto& info) {
    return QString::fromUtf8(info.param.name).remove(u'-').toStdString();
});

TEST_P(ContactSheet, MatchesTheRecordedPicture) {
    const QString name = QString::fromUtf8(GetParam().name);
    expectGolden(u"textanim-%1.png"_s.arg(name), draw(GetParam()));
}

TEST_P(ContactSheet, DetectsAMovedLineAndAnotherOpacity) {
    const QImage right = draw(GetParam());
    EXPECT_FALSE(comparePictures(right, draw(GetParam(), {2, 1})).acceptable());
    EXPECT_FALSE(comparePictures(right, draw(GetParam(), {0, 0.9})).acceptable());
}

// Another rasteriser may draw the same outlines a fraction of a pixel away.
TEST_P(ContactSheet, AcceptsAnotherRasteriser) {
    const QImage right = draw(GetParam());
    EXPECT_TRUE(
        comparePictures(right, draw(GetParam(), {0.12 / GetParam().ratio, 1})).acceptable());
}
