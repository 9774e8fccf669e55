#include "textanim/revealline.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>

// What one frame of a line costs at two screen sizes, also as a share of
// copying that frame in the same run ("per_copy").

using namespace morrowleaf;

namespace {

struct Screen {
    QSize size;
    double ratio;
};

Screen screenOf(std::int64_t which) {
    return which == 0 ? Screen{{1512, 982}, 1} : Screen{{3840, 2160}, 2};
}

const FontBook& book() {
    static const FontBook filled = [] {
        FontBook shipped;
        shipped.registerBundledFonts(MORROWLEAF_RESOURCE_DIR "/Fonts");
        return shipped;
    }();
    return filled;
}

RevealLine::Parts parts(TextAnim style) {
    const TextFont font = quoteFont(book(), "fraunces", 44);
    return {"The impediment to action advances action",
            0,
            style,
            font,
            font,
            QColor("#f3ece0"),
            {0.35, 24, {0, 6}},
            1000};
}

double copySeconds(const QImage& frame) {
    QImage copy = frame.copy();
    double best = 1;
    for (int i = 0; i < 9; ++i) {
        const auto start = std::chrono::steady_clock::now();
        std::memcpy(copy.bits(), frame.constBits(), static_cast<std::size_t>(frame.sizeInBytes()));
        benchmark::DoNotOptimize(copy.bits());
        best = std::min(
            best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return best;
}

// Frames at 60 a second over the share `from`...`to` of the entrance.
void paintFrames(benchmark::State& state, TextAnim style, double from, double to) {
    const Screen screen = screenOf(state.range(0));
    QImage frame(screen.size, QImage::Format_RGB32);
    frame.fill(QColor("#1c2a3a"));
    frame.setDevicePixelRatio(screen.ratio);
    const RevealLine line(parts(style));
    const double length = line.settledAfter() - line.delay();
    const double first = line.delay() + length * from;
    const double last = line.delay() + length * to;
    double seconds = first;
    QPainter painter(&frame);
    double spent = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        line.paint(painter, {256, 400}, seconds);
        spent += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
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

// The pen at a tenth, half and nine tenths of its way; same work per frame.
void pen(benchmark::State& state, double share) {
    const QImage frame(1512, 982, QImage::Format_RGB32);
    RevealLine::Parts bare = parts(TextAnim::Handwrite);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    // Seconds at which the curve has traced these shares.
    const double middle = line.delay() + 1.25 * (share < 0.3 ? 0.22 : share < 0.7 ? 0.5 : 0.69);
    QImage target = frame;
    QPainter painter(&target);
    double seconds = middle;
    line.paint(painter, {256, 400}, seconds);
    for (auto _ : state) {
        seconds += 1.0 / 60;
        if (seconds > middle + 0.1) {
            state.PauseTiming();
            seconds = middle;
            line.paint(painter, {256, 400}, seconds);
            state.ResumeTiming();
            seconds += 1.0 / 60;
        }
        line.paint(painter, {256, 400}, seconds);
    }
}

BENCHMARK_CAPTURE(pen, begun, 0.1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pen, half, 0.5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pen, near_end, 0.9)->Unit(benchmark::kMillisecond);

// A new line for a changed colour or size while a slider moves.
void rebuilt(benchmark::State& state, TextAnim style) {
    double size = 44;
    for (auto _ : state) {
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

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
