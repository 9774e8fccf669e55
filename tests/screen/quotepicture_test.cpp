// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotepicture.h"

#include "screen/windowpixels.h"
#include "tests/backdrop/lazywindow.h"
#include "tests/screen/drawnview.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>

namespace morrowleaf {
namespace {

constexpr double wall = 8.1e8 + 0.013; // of the appearance, seconds since 2001
constexpr double frame = 1.0 / 60;
constexpr double longAgo = 30; // seconds after the appearance, when all texts are at rest
constexpr double worstMean = 0.37;

QuoteViewState moving(ScreenAnim motion) {
    QuoteViewState state = plainState({1200, 800});
    state.settings.screenAnimRaw = rawValue(motion);
    state.quote = {threeLines, u"An author"_s};
    return state;
}

// A window that is painted as a quote screen paints.
class Shown {
public:
    explicit Shown(const QuoteViewState& state)
        : view_(state, shippedFonts()) {
        paintAll();
    }

    // Shows another state, everywhere.
    void change(const QuoteViewState& state) {
        view_.update(state, seconds);
        paintAll();
    }
    // Lets time pass until the next frame.
    void tick(double later = frame) {
        const double before = seconds;
        seconds += later;
        QRegion changed =
            onWholePixels(view_.changedBetween(before, seconds), pixels.devicePixelRatio());
        if (picture.isDue(seconds)) {
            picture.advance(seconds, wall + jump + seconds);
            changed += picture.outdated(pixels.devicePixelRatio());
        }
        if (!changed.isEmpty()) {
            expose(changed);
        }
    }
    // Frames of a sixtieth of a second.
    void play(double duration) {
        for (const double end = seconds + duration; seconds < end;) {
            tick();
        }
    }
    void expose(const QRegion& region) { picture.paint(pixels, region, view_, seconds); }
    QRect all() const { return QRectF(QPointF(), view_.state().size).toAlignedRect(); }
    const QuoteViewState& state() const { return view_.state(); }

    void expectFresh(const char* when) const {
        BackdropPainter painter;
        const QImage fresh =
            renderFrame(painter, picture.backdrop, view_, seconds, wall + jump + seconds);
        ASSERT_EQ(fresh.size(), pixels.size());
        const Lag lag = lagOf(pixels, fresh);
        EXPECT_LE(lag.sample, 1) << when << ' ' << seconds;
        EXPECT_LE(lag.square, worstMean) << when << ' ' << seconds;
    }

    QuotePicture picture;
    QImage pixels;
    double seconds = 0; // since the appearance
    double jump = 0;    // by which the wall clock has been set

private:
    void paintAll() {
        const QuoteViewState& state = view_.state();
        picture.backdrop = backdropFor(state.settings, state.palette, false);
        picture.change();
        picture.advance(seconds, wall + jump + seconds);
        const QSize size = (state.size * state.devicePixelRatio).toSize();
        if (pixels.size() != size) {
            pixels = QImage(size, QImage::Format_ARGB32_Premultiplied);
            pixels.fill(0x55AA3311);
        }
        pixels.setDevicePixelRatio(state.devicePixelRatio);
        expose(all());
    }

    QuoteView view_;
};

} // namespace

TEST(QuotePicture, ShowsEveryInstantOfAnEntranceInEveryStyle) {
    for (const TextAnim style : allTextAnims) {
        QuoteViewState state = moving(ScreenAnim::Aurora);
        state.settings.textAnimRaw = rawValue(style);
        Shown shown(state);
        for (const double pause : {0.1, 0.4, 0.7, 1.3}) {
            shown.play(pause);
            shown.expectFresh("in the entrance");
        }
        shown.tick(4);
        shown.play(0.2);
        shown.expectFresh("at rest");
    }
}

TEST(QuotePicture, IsFreshAfterAnySequence) {
    std::mt19937 random(19031);
    const auto upTo = [&](int most) { return static_cast<int>(random() % (unsigned(most) + 1)); };
    Shown shown(moving(ScreenAnim::Drift));
    for (int step = 0; step < 80; ++step) {
        QuoteViewState state = shown.state();
        switch (upTo(11)) {
        case 0: // a part is exposed
            shown.expose(QRect(upTo(1100), upTo(700), 1 + upTo(500), 1 + upTo(300)) & shown.all());
            break;
        case 1: // everything is
            shown.expose(shown.all());
            break;
        case 2: // another size or ratio
            state.size = QSizeF(1200 + 20 * upTo(3), 800 + 20 * upTo(3));
            state.devicePixelRatio = std::array{1.0, 1.25, 2.0}[size_t(upTo(2))];
            shown.change(state);
            break;
        case 3: // another text, which enters
            state.quote.text = upTo(1) == 0 ? threeLines : u"Begin."_s;
            shown.change(state);
            break;
        case 4: // another look
            state.palette = Palette::all()[size_t(upTo(8))];
            state.settings.grainOn = upTo(1) == 0;
            state.settings.screenAnimRaw = rawValue(allScreenAnims.at(size_t(upTo(4))));
            shown.change(state);
            break;
        case 5: // the clock is set, which is noticed within half a second
            shown.jump += upTo(200) / 7.0 - 14;
            shown.play(ShownTiles::longestWait + 0.1);
            break;
        case 6: // a long time without frames
            shown.tick(0.5 + upTo(60));
            break;
        default:
            shown.play(0.05 + upTo(10) / 10.0);
            break;
        }
        shown.tick();
        shown.tick();
        shown.expectFresh("in the sequence");
        if (HasFailure()) {
            return;
        }
    }
}

TEST(QuotePicture, ComputesABackdropOnceWhileEverythingFades) {
    Shown shown(moving(ScreenAnim::Still));
    const qint64 whole = qint64{1200} * 800;
    for (const double start : {0.0, longAgo}) { // of the fade in, and of the fade out
        shown.tick(start);
        const qint64 before = shown.picture.computed();
        for (int i = 0; i < 30; ++i) {
            shown.tick();
            shown.expose(shown.all());
        }
        EXPECT_LE(shown.picture.computed() - before, whole) << start;
        shown.expectFresh("in a fade");
    }
}

TEST(QuotePicture, ComputesLessThanItPaintsInAnEntrance) {
    Shown shown(moving(ScreenAnim::Drift));
    const double whole = 1200.0 * 800;
    const auto before = static_cast<double>(shown.picture.computed());
    for (int i = 0; i < 60; ++i) {
        shown.tick();
        shown.expose(shown.all());
    }
    const double computed = static_cast<double>(shown.picture.computed()) - before;
    EXPECT_GT(computed, 1.5 * whole); // it moves
    EXPECT_LT(computed, 12 * whole);  // of 60 frames
}

TEST(QuotePicture, PaintsPartsWhereverItIsPainted) {
    Shown shown(moving(ScreenAnim::Drift));
    shown.tick(longAgo);
    QImage elsewhere(shown.pixels.size(), QImage::Format_ARGB32_Premultiplied);
    elsewhere.fill(Qt::transparent);
    const QRect part(100, 300, 400, 50);
    const QuoteView view(shown.state(), shippedFonts());
    shown.picture.paintElsewhere(elsewhere, part, view, shown.seconds);
    EXPECT_EQ(elsewhere.pixelColor(99, 300).alpha(), 0);
    EXPECT_EQ(elsewhere.pixelColor(100, 300).alpha(), 255);
    for (int i = 0; i < 10; ++i) {
        shown.tick();
    }
    shown.expectFresh("after a picture of it");
}

} // namespace morrowleaf
