// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Compares the CPU time of a backdrop frame with that of a memcpy of the same frame
// in the same run, and with the plain composition by QPainter that it replaces.

#include "backdrop/backdrop.h"
#include "backdrop/vignette.h"
#include "look/grain.h"

#include <QPainter>
#include <QRadialGradient>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace {

using namespace morrowleaf;

constexpr std::array<std::array<int, 2>, 3> sizes{{{1512, 982}, {2560, 1440}, {3840, 2160}}};

QImage frameOf(const benchmark::State& run) {
    QImage frame(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)),
                 QImage::Format_ARGB32_Premultiplied);
    frame.fill(0);
    return frame;
}

void copying(benchmark::State& run) {
    QImage from = frameOf(run);
    QImage to = frameOf(run);
    for ([[maybe_unused]] auto _ : run) {
        std::memcpy(to.bits(), from.constBits(), static_cast<std::size_t>(from.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

void backdrop(benchmark::State& run) {
    QImage frame = frameOf(run);
    BackdropPainter painter;
    BackdropState state;
    state.palette = Palette::all()[0];
    double now = 8e8;
    for ([[maybe_unused]] auto _ : run) {
        painter.paint(frame, frame.rect(), state, now);
        now += backdropInterval;
        benchmark::ClobberMemory();
    }
}

// Composes a frame with QPainter: an enlarged picture of the colours, a radial
// gradient and a tiled brush.
void naive(benchmark::State& run) {
    QImage frame = frameOf(run);
    QImage colours(64, 40, QImage::Format_RGB32);
    colours.fill(Palette::all()[0].colors[4]);
    const QImage noise(grain().data(), grainSize, grainSize, QImage::Format_RGBX8888);
    const QBrush tile(noise);
    QRadialGradient gradient(QPointF(frame.width() / 2.0, frame.height() / 2.0), vignetteOuter);
    gradient.setColorAt(vignetteInner / vignetteOuter, Qt::transparent);
    gradient.setColorAt(1, QColor(0, 0, 0, 140));
    for ([[maybe_unused]] auto _ : run) {
        QPainter painter(&frame);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(frame.rect(), colours);
        painter.fillRect(frame.rect(), gradient);
        painter.setOpacity(grainOpacity);
        painter.fillRect(frame.rect(), tile);
        benchmark::ClobberMemory();
    }
}

void everySize(benchmark::internal::Benchmark* bench) {
    for (const auto& size : sizes) {
        bench->Args({size[0], size[1]});
    }
    bench->MeasureProcessCPUTime()->Repetitions(7)->ReportAggregatesOnly(true)->Unit(
        benchmark::kMillisecond);
}

BENCHMARK(copying)->Apply(everySize);
BENCHMARK(backdrop)->Apply(everySize);
BENCHMARK(naive)->Apply(everySize);

class Ratios : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median") {
                medians_[run.run_name.function_name + "/" + run.run_name.args] =
                    run.GetAdjustedCPUTime();
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        for (const auto& size : sizes) {
            std::string at(1, '/');
            at.append(std::to_string(size[0])).append(1, '/').append(std::to_string(size[1]));
            std::printf("%d x %d: backdrop %.2f, naive %.1f times a memcpy\n", size[0], size[1],
                        medians_["backdrop" + at] / medians_["copying" + at],
                        medians_["naive" + at] / medians_["copying" + at]);
        }
    }

private:
    std::map<std::string, double> medians_;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    Ratios reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
