// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "quotes/collection.h"
#include "screen/quoteview.h"
#include "settings/settingstable.h"
#include "tests/screen/sceneforscreens.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace morrowleaf;

namespace {

constexpr std::array fonts{"fraunces", "serif", "sans", "rounded", "mono", "no such face"};
constexpr int ordinary = 39; // the built-in quotation
constexpr double frame = 1.0 / 30;
constexpr std::array instants{0.0, 0.9, 0.9 + frame, 1.9, 1.9 + frame, 60.0, 60 + frame};

// Processor time, in seconds.
struct Costs {
    double first = 0;
    double later = 0; // of the slowest frame shortly after another
};

Costs play(const QuoteViewState& state) {
    BackdropPainter painter;
    const BackdropState backdrop = backdropFor(state.settings, state.palette, false);
    Costs costs;
    std::clock_t start = std::clock();
    const QuoteView view(state, shippedFonts());
    for (std::size_t i = 0; i < instants.size(); ++i) {
        if (renderFrame(painter, backdrop, view, instants[i], instants[i]).isNull()) {
            std::abort();
        }
        const std::clock_t end = std::clock();
        const double seconds = static_cast<double>(end - start) / CLOCKS_PER_SEC;
        if (i == 0) {
            costs.first = seconds;
        } else if (i % 2 == 0) {
            costs.later = std::max(costs.later, seconds);
        }
        start = end;
    }
    return costs;
}

// The costs of a built-in quotation, as the first of this style has found them.
const Costs& usual(QuoteViewState state) {
    static std::array<Costs, allTextAnims.size()> known;
    Costs& costs = known.at(static_cast<std::size_t>(storedTextAnim(state.settings.textAnimRaw)));
    if (costs.first == 0) {
        state.quote = quotes[ordinary];
        state.settings.sizeScale = K::textScale.initial;
        play(state); // loads the faces
        costs = play(state);
    }
    return costs;
}

bool isTooSlow(const Costs& costs, const Costs& usual) {
    constexpr double mostTimesFirst = 80;
    constexpr double mostTimes = 10;
    return costs.first > mostTimesFirst * usual.first || costs.later > mostTimes * usual.later;
}

[[maybe_unused]] void expectUsualCosts(const QuoteViewState& state) {
    const Costs& most = usual(state);
    Costs costs = play(state);
    // What other programs disturb, and loading a face, is not the fault of the text.
    for (int again = 0; again < 4 && isTooSlow(costs, most); ++again) {
        costs = play(state);
    }
    if (isTooSlow(costs, most)) {
        std::fprintf(stderr, "first frame %.1f ms, usually %.1f; later %.1f ms, usually %.1f\n",
                     1e3 * costs.first, 1e3 * most.first, 1e3 * costs.later, 1e3 * most.later);
        std::abort();
    }
}

} // namespace

// Any text in any style can be drawn, and no frame of it takes much longer than one of a
// built-in quotation. The first bytes choose style, typeface and size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 3;
    if (size < choices) {
        return 0;
    }
    QuoteViewState state = plainState({400, 250});
    state.settings.textAnimRaw = rawValue(allTextAnims.at(data[0] % allTextAnims.size()));
    state.settings.fontName = QString::fromLatin1(fonts.at(data[1] % fonts.size()));
    state.settings.sizeScale = 0.7 + data[2] / 255.0;
    const auto text = QString::fromUtf8(reinterpret_cast<const char*>(data) + choices,
                                        static_cast<qsizetype>(size - choices));
    constexpr char16_t authorFollows = u'\n';
    state.quote = {text.section(authorFollows, 0, 0), text.section(authorFollows, 1)};
#if defined(FUZZER) // a test that replays inputs measures no time
    play(state);
#else
    expectUsualCosts(state);
#endif
    return 0;
}
