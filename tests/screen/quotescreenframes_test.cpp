// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// When a quote screen draws frames, and what they show.
#include "tests/screen/quotescreenfixture.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>
#include <private/qwindow_p.h>

using namespace morrowleaf;

TEST_F(QuoteScreens, SleepsUntilSomethingMoves) {
    const auto screen = shown();
    time = 50.01;
    QTest::qWait(150); // the first thing to move is the mark, at 0.35 s
    const int frames = screen->frames;
    QTest::qWait(150);
    EXPECT_EQ(screen->frames, frames);
    EXPECT_TRUE(screen->isAnimating());
}

TEST_F(QuoteScreens, SleepsWhileHidden) {
    store.set(K::screenAnim, u"aurora"_s);
    const auto screen = shown();
    jumpTo(*screen, 60);
    EXPECT_TRUE(screen->isAnimating());
    screen->hide();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        time += 1;
        return !screen->isAnimating();
    }));
    const int frames = screen->frames;
    QTest::qWait(100);
    EXPECT_EQ(screen->frames, frames);
    screen->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->frames > frames && screen->isAnimating(); }));
}

TEST_F(QuoteScreens, MovesAgainWhenItIsSeenAgain) {
    store.set(K::screenAnim, u"aurora"_s);
    const auto screen = shown();
    jumpTo(*screen, 60);
    // As window systems do that paint a window only when they need its pixels.
    bool& exposed = qt_window_private(screen->windowHandle())->exposed;
    exposed = false;
    const auto pass = [&] {
        time += 0.3;
        QTest::qWait(30);
    };
    for (int i = 0; i < 5; ++i) {
        pass();
    }
    const int frames = screen->frames;
    pass();
    EXPECT_EQ(screen->frames, frames);
    exposed = true;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        time += 1.0 / 60;
        return screen->frames > frames + 2;
    }));
}

TEST_F(QuoteScreens, MovesTheBackdropAtMostThirtyTimesASecond) {
    store.set(K::screenAnim, u"aurora"_s);
    const Monotonic steady = steadySeconds();
    double ahead = 0;
    FrameClock realFrames([&] { return steady() + ahead; });
    wallClock = steady;
    const auto made = make(realFrames);
    CountingScreen& screen = *made;
    screen.resize(320, 240);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen.view() != nullptr; }));
    ahead = 100; // the entrance is over
    QTest::qWait(50);
    const int before = screen.frames;
    const double begun = steady();
    QTest::qWait(1000);
    const double seconds = steady() - begun;
    EXPECT_LE(screen.frames - before, 30 * seconds + 1.01);
    EXPECT_GE(screen.frames - before, 3);
}

TEST_F(QuoteScreens, ShowsEveryInstantAlthoughItPaintsOnlyWhatHasChanged) {
    store.set(K::screenAnim, u"aurora"_s);
    wallClock = [this] { return time; };
    const auto made = make();
    CountingScreen& screen = *made;
    screen.resize(1200, 800);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen));
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen.view() != nullptr; }));
    const auto window = [&] {
        return QApplication::primaryScreen()->grabWindow(screen.winId()).toImage();
    };
    const auto isShown = [&] {
        const QuoteView& view = *screen.view();
        BackdropPainter painter;
        const QImage wanted =
            renderFrame(painter, backdropFor(view.state().settings, view.state().palette, false),
                        view, time - 50, plainState().moment.unixSeconds + time - unixToReference);
        const QImage shown = window().convertToFormat(wanted.format());
        int widest = shown.size() == wanted.size() ? 0 : 255;
        for (int y = 0; widest < 2 && y < shown.height(); ++y) {
            const uchar* a = shown.constScanLine(y);
            const uchar* b = wanted.constScanLine(y);
            for (int i = 0; i < shown.width() * 4; ++i) {
                widest = std::max(widest, std::abs(a[i] - b[i]));
            }
        }
        return widest < 2;
    };
    // During the entrance, at rest, and after the clock has been set.
    for (const double step : {0.4, 0.05, 0.05, 0.3, 0.9, 1.5, 5.0, 1.0, 0.04, 0.04, 0.2, 70.0}) {
        time += step;
        EXPECT_TRUE(QTest::qWaitFor(isShown, 5000)) << time;
    }
    screen.repaint(QRect(100, 70, 300, 201));
    (void)screen.grab(); // must not count as painted on the window
    time += 0.1;
    EXPECT_TRUE(QTest::qWaitFor(isShown, 5000));

    screen.painted = 0;
    const int ticks = 20;
    for (int tick = 0; tick < ticks; ++tick) {
        time += 1.0 / 30;
        EXPECT_TRUE(QTest::qWaitFor(isShown, 5000)) << time;
    }
    EXPECT_LT(screen.painted, 0.9 * ticks * 1200 * 800);
}
