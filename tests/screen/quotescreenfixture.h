// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdrop.h"
#include "photos/bgstore.h"
#include "quotes/quotebox.h"
#include "screen/quotescreen.h"
#include "screen/quoteview.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "tests/screen/sceneforscreens.h"

#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

class CountingScreen : public QuoteScreen {
public:
    using QuoteScreen::QuoteScreen;
    int frames = 0;
    QRegion lastRegion;
    double painted = 0; // points of area

protected:
    void paintEvent(QPaintEvent* event) override {
        ++frames;
        lastRegion = event->region();
        for (const QRect& rect : lastRegion) {
            painted += static_cast<double>(rect.width()) * rect.height();
        }
        QuoteScreen::paintEvent(event);
    }
};

class QuoteScreens : public ::testing::Test {
protected:
    QuoteScreens() {
        registerAppDefaults(store);
        store.set(K::screenAnim, u"still"_s);
        store.set(K::palette, 0);
    }

    std::unique_ptr<CountingScreen> make(FrameClock& frameClock, QWidget* parent = nullptr) {
        const Clock clock = [this] {
            Moment moment = plainState().moment;
            moment.unixSeconds += wallClock ? wallClock() : 0;
            return moment;
        };
        auto box = std::make_unique<QuoteBox>(
            store,
            [this](const QString&, std::function<void(std::optional<Quote>)> done) {
                loaded = std::move(done);
            },
            clock, [](qsizetype) -> qsizetype { return 0; });
        return std::make_unique<CountingScreen>(store, shippedFonts(), photos, std::move(box),
                                                clock, frameClock, parent);
    }
    std::unique_ptr<CountingScreen> make(QWidget* parent = nullptr) {
        return make(fakeFrames, parent);
    }

    std::unique_ptr<CountingScreen> shown(QWidget* inspector = nullptr) {
        auto screen = make();
        if (inspector != nullptr) {
            screen->setInspector(inspector);
        }
        screen->resize(640, 480);
        screen->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(screen.get()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return screen->view() != nullptr; }));
        return screen;
    }

    // Moves the clock of the entrances to an instant, and lets the screen follow.
    void jumpTo(CountingScreen& screen, double seconds) {
        time = seconds;
        const int before = screen.frames;
        if (screen.isAnimating()) {
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return screen.frames > before || !screen.isAnimating(); }));
        }
    }

    void settle(CountingScreen& screen) {
        time += 100;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            time += 1; // a photo may still arrive
            return !screen.isAnimating();
        }));
        QTest::qWait(20);
    }

    // What the screen should look like, drawn without a window.
    static QImage expected(const QuoteScreen& screen, double seconds) {
        const QuoteView& view = *screen.view();
        BackdropPainter painter;
        return renderFrame(painter, backdropFor(view.state().settings, view.state().palette, false),
                           view, seconds, view.state().moment.unixSeconds - unixToReference);
    }

    QTemporaryDir folder;
    SettingsStore store;
    BGStore photos{store, folder.path(), folder.path()};
    std::function<void(std::optional<Quote>)> loaded;
    double time = 50;
    Monotonic wallClock; // what the wall clock adds to its moment; it stands still if null
    FrameClock fakeFrames{[this] { return time; }};
};

} // namespace morrowleaf
