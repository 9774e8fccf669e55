// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "screen/quoteview.h"
#include "tests/fakes/shippedfonts.h"

#include <QPainter>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <numeric>
#include <vector>

// Measures the whole entrance of a quotation of five lines, drawn at 60 frames a
// second as the quote screen does: all of it whenever the backdrop advances (30
// times a second), and in between only the text that has moved. Reports processor
// time in milliseconds: for a frame of each kind, for a frame in the busiest
// quarter of a second (the median of the runs), and for a second of the entrance.

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Screen {
    QSize pixels;
    double ratio;
};

Screen screenOf(std::int64_t which) {
    switch (which) {
    case 0:
        return {{1512, 982}, 1};
    case 1:
        return {{1920, 1080}, 1};
    default:
        return {{3840, 2160}, 2};
    }
}

QuoteViewState quoted(TextAnim style, const Screen& screen) {
    QuoteViewState state;
    state.settings.fontName = u"fraunces"_s;
    state.settings.textAnimRaw = rawValue(style);
    state.palette = Palette::all()[0];
    state.size = QSizeF(screen.pixels) / screen.ratio;
    state.mainScreen = state.size;
    state.devicePixelRatio = screen.ratio;
    state.locale = QLocale::c();
    state.quote = {u"The impediment to action advances action, and what stands in the way becomes "
                   "the way; so begin the morning by saying to yourself that you shall meet with "
                   "the busybody and the ungrateful."_s,
                   u"Marcus Aurelius"_s};
    return state;
}

double processorTime() {
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

struct Costs {
    double whole = 0;
    double between = 0;
    std::vector<double> busiest; // one value for each run
    int wholeFrames = 0;
    int betweenFrames = 0;
};

double busiestMean(const std::vector<double>& frames, std::ptrdiff_t window) {
    double most = 0;
    for (auto first = frames.begin(); frames.end() - first >= window; ++first) {
        most = std::max(most, std::accumulate(first, first + window, 0.0));
    }
    return most / static_cast<double>(window);
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void playOnce(const QuoteViewState& state, BackdropPainter& painter, QImage& frame, Costs& costs) {
    const BackdropState backdrop = backdropFor(state.settings, state.palette, false);
    const QuoteView view(state, shippedFonts());
    double end = 0;
    while (const auto motion = view.nextMotion(end)) {
        end = *motion + 0.1;
    }
    const double ratio = state.devicePixelRatio;
    double last = 0;
    double backdropAt = 0;
    const int frames = static_cast<int>(end * 60);
    std::vector<double> frameCosts;
    for (int i = 0; i <= frames; ++i) {
        const double seconds = i / 60.0;
        const bool all = i % 2 == 0;
        const QRegion region = all ? QRegion(QRectF(QPointF(), state.size).toAlignedRect())
                                   : view.changedBetween(last, seconds);
        backdropAt = all ? seconds : backdropAt;
        last = seconds;
        const double start = processorTime();
        for (const QRect& rect : region) {
            const QRect pixels =
                QRectF(QPointF(rect.topLeft()) * ratio, QSizeF(rect.size()) * ratio)
                    .toAlignedRect()
                    .intersected(frame.rect());
            if (pixels.isEmpty()) {
                continue;
            }
            painter.paint(frame, pixels, backdrop, backdropAt);
            QPainter text(&frame);
            text.setClipRect(rect);
            view.paint(text, seconds, rect);
        }
        const double spent = processorTime() - start;
        if (i == 0) {
            continue; // the first frame also sets up the backdrop
        }
        frameCosts.push_back(spent);
        (all ? costs.whole : costs.between) += spent;
        ++(all ? costs.wholeFrames : costs.betweenFrames);
    }
    costs.busiest.push_back(busiestMean(frameCosts, 15));
}

void entrance(benchmark::State& state, TextAnim style) {
    const Screen screen = screenOf(state.range(0));
    const QuoteViewState quotation = quoted(style, screen);
    QImage frame(screen.pixels, QImage::Format_ARGB32_Premultiplied);
    frame.setDevicePixelRatio(screen.ratio);
    BackdropPainter painter;
    Costs costs;
    for ([[maybe_unused]] auto _ : state) {
        playOnce(quotation, painter, frame, costs);
    }
    state.counters["whole_ms"] = costs.whole / costs.wholeFrames;
    state.counters["between_ms"] = costs.between / costs.betweenFrames;
    state.counters["busiest_ms"] = median(costs.busiest);
    state.counters["cpu_ms_per_s"] =
        60 * (costs.whole + costs.between) / (costs.wholeFrames + costs.betweenFrames);
}

BENCHMARK_CAPTURE(entrance, fade, TextAnim::Fade)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, rise, TextAnim::Rise)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, blur, TextAnim::Blur)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, typewriter, TextAnim::Typewriter)
    ->DenseRange(0, 2)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(entrance, handwrite, TextAnim::Handwrite)
    ->DenseRange(0, 2)
    ->Unit(benchmark::kMillisecond);

} // namespace
