// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Compares the processor time of the frames of hostile texts with that of a built-in
// quotation in the same run.
#include "backdrop/backdrop.h"
#include "quotes/collection.h"
#include "screen/quoteview.h"
#include "tests/screen/sceneforscreens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ordinary = 39; // the built-in quotation
constexpr double mostTimes = 5;

struct Hostile {
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

const QString marks(300, QChar(0x0301));

std::vector<Hostile> stacks() {
    return {{"one stack of marks", QChar(0x0F40) + QString(5000, QChar(0x0F90))},
            {"nothing but marks", QString(20000, QChar(0x0301))},
            {"many stacks in one word", (u"e"_s + marks).repeated(200)},
            {"many stacks", (u"e"_s + marks + u' ').repeated(200)},
            {"one syllable", QString(5000, QChar(0x1100))}};
}

std::vector<Hostile> longTexts() {
    return {{"a plane in one word", wholePlane()},
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
    std::vector<Instant> all{{0, true}};
    for (double seconds = 0.4; seconds < 2.4; seconds += frame) {
        all.push_back({seconds, true});
    }
    for (const double start : {5.0, 20.0, 600.0}) {
        all.push_back({start, false});
        all.push_back({start + frame, true});
        all.push_back({start + 2 * frame, true});
    }
    return all;
}

struct Costs {
    double first = 0; // seconds
    std::vector<double> later;

    double mostLater() const { return *std::ranges::max_element(later); }
};

Costs play(const Quote& quote, TextAnim style) {
    QuoteViewState state = plainState();
    state.settings.textAnimRaw = rawValue(style);
    state.quote = quote;
    BackdropPainter painter;
    const BackdropState backdrop = backdropFor(state.settings, state.palette, false);
    Costs costs;
    double start = processorSeconds();
    const QuoteView view(state, shippedFonts());
    for (const Instant& instant : instants()) {
        renderFrame(painter, backdrop, view, instant.seconds, instant.seconds);
        const double end = processorSeconds();
        if (instant.seconds == 0) {
            costs.first = end - start;
        } else if (instant.counts) {
            costs.later.push_back(end - start);
        }
        start = end;
    }
    return costs;
}

// What other programs disturb is not the fault of the text.
Costs leastOf(const Costs& a, const Costs& b) {
    Costs least{std::min(a.first, b.first), a.later};
    std::ranges::transform(a.later, b.later, least.later.begin(),
                           [](double one, double other) { return std::min(one, other); });
    return least;
}

class FrameCost : public testing::TestWithParam<TextAnim> {
protected:
    Costs usual() const {
        const Quote& quote = quotes[ordinary];
        play(quote, GetParam()); // loads the faces
        return leastOf(play(quote, GetParam()), play(quote, GetParam()));
    }

    // The least of several repetitions; more than one are made only if the first is too slow.
    Costs costsOf(const Hostile& hostile, double mostFirst, double mostLater) const {
        const Quote quote{hostile.text, u"B"_s};
        play(quote, GetParam()); // loads the faces
        Costs costs = play(quote, GetParam());
        for (int again = 0; again < 4 && (costs.first > mostFirst || costs.mostLater() > mostLater);
             ++again) {
            costs = leastOf(costs, play(quote, GetParam()));
        }
        return costs;
    }

    void report(const Hostile& hostile, const Costs& costs, const Costs& usual) {
        RecordProperty(
            hostile.name,
            QString::number(costs.first / usual.first, 'f', 1).toStdString() + " and " +
                QString::number(costs.mostLater() / usual.mostLater(), 'f', 1).toStdString());
    }
};

INSTANTIATE_TEST_SUITE_P(QuoteView, FrameCost, testing::ValuesIn(allTextAnims),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

TEST_P(FrameCost, IsBoundedForStacksOfMarks) {
    const Costs usual = this->usual();
    for (const Hostile& hostile : stacks()) {
        const double first = mostTimes * usual.first;
        const double later = mostTimes * usual.mostLater();
        const Costs costs = costsOf(hostile, first, later);
        EXPECT_LE(costs.first, first) << hostile.name;
        EXPECT_LE(costs.mostLater(), later) << hostile.name;
        report(hostile, costs, usual);
    }
}

// Laying out as many letters as a screen can hold takes longer than a quotation.
TEST_P(FrameCost, AfterTheFirstIsBoundedForLongTexts) {
    const Costs usual = this->usual();
    constexpr double mostFirst = 40;
    for (const Hostile& hostile : longTexts()) {
        const double first = mostFirst * usual.first;
        const double later = mostTimes * usual.mostLater();
        const Costs costs = costsOf(hostile, first, later);
        EXPECT_LE(costs.first, first) << hostile.name;
        EXPECT_LE(costs.mostLater(), later) << hostile.name;
        report(hostile, costs, usual);
    }
}

} // namespace
