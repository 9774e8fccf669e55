// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "quotes/collection.h"
#include "screen/quoteview.h"
#include "tests/screen/sceneforscreens.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

// Compares the frames of texts that are hard to draw with those of a built-in quotation
// in the same run. Reports how many times as much processor time is needed by the first
// frame ("first", with the layout), by the most expensive later frame ("later"), and by
// the first frame of a view that is drawn only at rest ("rest"); "usual_ms" is the
// quotation's first frame.

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualQuote = 39;

struct HardText {
    const char* name;
    QString text;
};

QString wholePlane() {
    QString text;
    for (int code = 0x21; code < 0xFFFE; ++code) {
        if (!QChar::isSurrogate(static_cast<char32_t>(code))) {
            text += QChar(code);
        }
    }
    return text;
}

std::vector<HardText> hardTexts() {
    const QString marks(300, QChar(0x0301));
    return {{"one stack of marks", QChar(0x0F40) + QString(5000, QChar(0x0F90))},
            {"nothing but marks", QString(20000, QChar(0x0301))},
            {"many stacks in one word", (u"e"_s + marks).repeated(200)},
            {"many stacks", (u"e"_s + marks + u' ').repeated(200)},
            {"one syllable", QString(5000, QChar(0x1100))},
            {"a plane in one word", wholePlane()},
            {"one word", QString(20000, u'w')},
            {"words", u"I will fill it "_s.repeated(20000)},
            {"emoji", u"\U0001F469\u200D\U0001F467"_s.repeated(5000)},
            {"intricate letters", QString(5000, QChar(0xFDFD))}};
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The instants, of several stretches of consecutive frames, at which the view is drawn.
struct Instant {
    double seconds = 0;
    bool counts = true; // false for one that no frame comes shortly before
};

std::vector<Instant> instants() {
    constexpr double frame = 1.0 / 30;
    std::vector<Instant> all(90);
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i].seconds = static_cast<double>(i) * frame;
    }
    for (const double start : {5.0, 20.0, 600.0}) {
        all.push_back({start, false});
        all.push_back({start + frame, true});
        all.push_back({start + 2 * frame, true});
    }
    return all;
}

// Seconds of processor time.
struct Costs {
    double first = 0;
    std::vector<double> later; // for each frame
    double rest = 0;

    double mostLater() const { return *std::ranges::max_element(later); }
};

Costs play(const Quote& quote, TextAnim style) {
    constexpr double atRest = 1e5; // seconds
    QuoteViewState state = plainState();
    state.settings.textAnimRaw = rawValue(style);
    state.quote = quote;
    BackdropPainter painter;
    const BackdropState backdrop = backdropFor(state.settings, state.palette, false);
    Costs costs;
    double start = processorSeconds();
    const auto spent = [&start] {
        const double begin = start;
        start = processorSeconds();
        return start - begin;
    };
    const QuoteView view(state, shippedFonts());
    for (const Instant& instant : instants()) {
        renderFrame(painter, backdrop, view, instant.seconds, instant.seconds);
        const double cost = spent();
        if (instant.seconds == 0) {
            costs.first = cost;
        } else if (instant.counts) {
            costs.later.push_back(cost);
        }
    }
    BackdropPainter another;
    spent();
    const QuoteView resting(state, shippedFonts());
    renderFrame(another, backdrop, resting, atRest, atRest);
    costs.rest = spent();
    return costs;
}

// What other programs disturb is not the fault of the text.
Costs leastOf(const Costs& a, const Costs& b) {
    Costs least{std::min(a.first, b.first), a.later, std::min(a.rest, b.rest)};
    std::ranges::transform(a.later, b.later, least.later.begin(),
                           [](double one, double other) { return std::min(one, other); });
    return least;
}

void frames(benchmark::State& state, TextAnim style, const QString& text) {
    const Quote usual = quotes[usualQuote];
    const Quote hard{text, u"B"_s};
    play(usual, style); // loads the faces
    play(hard, style);
    Costs usualCosts = play(usual, style);
    Costs hardCosts = play(hard, style);
    for ([[maybe_unused]] auto _ : state) {
        usualCosts = leastOf(usualCosts, play(usual, style));
        hardCosts = leastOf(hardCosts, play(hard, style));
    }
    state.counters["first"] = hardCosts.first / usualCosts.first;
    state.counters["later"] = hardCosts.mostLater() / usualCosts.mostLater();
    state.counters["rest"] = hardCosts.rest / usualCosts.rest;
    state.counters["usual_ms"] = 1e3 * usualCosts.first;
}

const bool registered = [] {
    for (const TextAnim style : allTextAnims) {
        for (const HardText& hard : hardTexts()) {
            const std::string name = rawValue(style).toStdString() + "/" + hard.name;
            benchmark::RegisterBenchmark(
                name.c_str(),
                [style, text = hard.text](benchmark::State& state) { frames(state, style, text); })
                ->Iterations(3)
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

} // namespace
