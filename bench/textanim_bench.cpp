// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "tests/fakes/shippedfonts.h"
#include "textanim/handwriting.h"
#include "textanim/pentrace.h"
#include "textanim/revealline.h"

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <ctime>

// Measures one frame of a line at two screen sizes, also relative to copying such
// a frame in the same run ("per_copy").

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Screen {
    QSize size;
    double ratio;
};

Screen screenOf(std::int64_t which) {
    return which == 0 ? Screen{{1512, 982}, 1} : Screen{{3840, 2160}, 2};
}

RevealLine::Parts parts(TextAnim style) {
    const TextFont font = quoteFont(shippedFonts(), u"fraunces"_s, 44);
    return {u"The impediment to action advances action"_s,
            0,
            style,
            font,
            font,
            QColor(0xf3ece0),
            {0.35, 24, {0, 6}},
            1000};
}

// The processor time of this process, which other programs do not affect.
double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double copySeconds(const QImage& frame) {
    QImage copy = frame.copy();
    double best = 1;
    for (int i = 0; i < 9; ++i) {
        const double start = processorSeconds();
        std::memcpy(copy.bits(), frame.constBits(), static_cast<std::size_t>(frame.sizeInBytes()));
        benchmark::DoNotOptimize(copy.bits());
        best = std::min(best, processorSeconds() - start);
    }
    return best;
}

// Paints frames at 60 a second between the fractions `from` and `to` of the entrance.
void paintFrames(benchmark::State& state, TextAnim style, double from, double to) {
    const Screen screen = screenOf(state.range(0));
    QImage frame(screen.size, QImage::Format_RGB32);
    frame.fill(QColor(0x1c2a3a));
    frame.setDevicePixelRatio(screen.ratio);
    const RevealLine line(parts(style));
    const double length = line.settledAfter() - line.delay();
    const double first = line.delay() + length * from;
    const double last = line.delay() + length * to;
    double seconds = first;
    QPainter painter(&frame);
    double spent = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double start = processorSeconds();
        line.paint(painter, {256, 400}, seconds);
        spent += processorSeconds() - start;
        seconds += 1.0 / 60;
        if (seconds > last && from < 1) {
            state.PauseTiming();
            seconds = first;
            line.paint(painter, {256, 400}, seconds);
            state.ResumeTiming();
        }
    }
    painter.end();
    state.counters["per_copy"] =
        spent / static_cast<double>(state.iterations()) / copySeconds(frame);
}

void entrance(benchmark::State& state, TextAnim style) {
    paintFrames(state, style, 0.02, 1);
}
void resting(benchmark::State& state, TextAnim style) {
    paintFrames(state, style, 1, 2);
}

BENCHMARK_CAPTURE(entrance, fade, TextAnim::Fade)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, rise, TextAnim::Rise)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, blur, TextAnim::Blur)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, typewriter, TextAnim::Typewriter)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, handwrite, TextAnim::Handwrite)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(resting, any, TextAnim::Fade)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Seconds after the delay at which this fraction of the outline has been traced.
double tracedAfter(double share) {
    double early = 0;
    double late = 1.25;
    for (int i = 0; i < 50; ++i) {
        const double middle = (early + late) / 2;
        (easeInEaseOut(middle / 1.25) < share ? early : late) = middle;
    }
    return late;
}

// Draws frames that each add the same length to the trace, beginning at the
// fraction of the outline (in percent) that is the argument of the benchmark. The
// cost must not grow with what has already been drawn.
template <typename Frame>
void tracing(benchmark::State& state, const Frame& frameAt) {
    const double from = static_cast<double>(state.range(0)) / 100;
    int i = 0;
    frameAt(from);
    double spent = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (++i > 7) {
            state.PauseTiming();
            frameAt(from);
            i = 1;
            state.ResumeTiming();
        }
        const double start = processorSeconds();
        frameAt(from + i / 75.0);
        spent += processorSeconds() - start;
    }
    state.counters["frame_us"] = 1e6 * spent / static_cast<double>(state.iterations());
}

void pen(benchmark::State& state) {
    const HandwrittenLine line = handwrittenLine(u"The impediment to action advances action"_s,
                                                 quoteFont(shippedFonts(), u"fraunces"_s, 44));
    const PenTrace trace = penTrace(wholePath(line.text), 33);
    PenDrawing drawing(1, line.penWidth, {-2, -2, 1000, 70}, 0);
    tracing(state, [&](double share) {
        benchmark::DoNotOptimize(drawing.at(trace, trace.length * share).constBits());
    });
}

void handwriting(benchmark::State& state) {
    QImage target(1512, 982, QImage::Format_RGB32);
    target.fill(QColor(0x1c2a3a));
    QPainter painter(&target);
    const RevealLine line(parts(TextAnim::Handwrite));
    tracing(state, [&](double share) {
        line.paint(painter, {256, 400}, line.delay() + tracedAfter(share));
    });
}

BENCHMARK(pen)->Arg(10)->Arg(50)->Arg(90)->Unit(benchmark::kMillisecond);
BENCHMARK(handwriting)->Arg(10)->Arg(50)->Arg(90)->Unit(benchmark::kMillisecond);

// Builds a new line for each of many sizes, as when a slider moves.
void rebuilt(benchmark::State& state, TextAnim style) {
    double size = 44;
    for ([[maybe_unused]] auto _ : state) {
        RevealLine::Parts changed = parts(style);
        size = size > 60 ? 44 : size + 0.1;
        changed.font.size = size;
        changed.strokeFont.size = size;
        const RevealLine line(changed);
        benchmark::DoNotOptimize(line.size());
    }
}

BENCHMARK_CAPTURE(rebuilt, fade, TextAnim::Fade)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(rebuilt, handwrite, TextAnim::Handwrite)->Unit(benchmark::kMillisecond);

} // namespace
