// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "screen/frameclock.h"
#include "screen/quotepicture.h"
#include "screen/quoteview.h"
#include "screen/windowpixels.h"
#include "tests/fakes/shippedfonts.h"

#include <QPainter>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

// Plays the first four seconds of a showing of five lines at 60 frames a second in two
// manners: as the quote screen does, and computing the whole backdrop anew for every paint
// of the whole window: 30 times a second, and in every frame while the window fades in.
// Both paint text where it has moved. Reports the processor time of both in milliseconds,
// their ratio, and the ratio of the dearest frames after the first. The frames of the two
// manners alternate, so that the load of the machine meets both.

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

constexpr double fadeIn = 0.55;   // of the window, seconds
constexpr double entranceEnd = 4; // seconds
constexpr double start = 8e8;     // seconds since 2001

// A window that is painted in one manner or the other.
class Window {
public:
    explicit Window(const QuoteViewState& state)
        : view_(state, shippedFonts())
        , frame_((state.size * state.devicePixelRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied) {
        frame_.setDevicePixelRatio(state.devicePixelRatio);
        picture_.backdrop = backdropFor(state.settings, state.palette, false);
    }

    // Paints what has changed, as the quote screen does.
    void paintChanges(double seconds) {
        QRegion region = changesOfTexts(seconds);
        if (last_ < 0) {
            picture_.advance(seconds, start + seconds);
        } else if (picture_.isDue(seconds)) {
            picture_.advance(seconds, start + seconds);
            region += picture_.outdated(frame_.devicePixelRatio());
        }
        picture_.paint(frame_, region, view_, seconds);
        last_ = seconds;
    }

    void paintEverything(double seconds) {
        QRegion region = changesOfTexts(seconds);
        if (backdropTick(seconds) != tick_) {
            tick_ = backdropTick(seconds);
            backdropAt_ = start + seconds;
            region = all();
        }
        for (const QRect& rect : region) {
            const QRect pixels =
                devicePixels(rect, frame_.devicePixelRatio()).intersected(frame_.rect());
            if (pixels.isEmpty()) {
                continue;
            }
            painter_.paint(frame_, pixels, picture_.backdrop, backdropAt_);
            QPainter text(&frame_);
            view_.paint(text, seconds, pixels);
        }
        last_ = seconds;
    }

private:
    QRect all() const { return QRectF(QPointF(), view_.state().size).toAlignedRect(); }
    QRegion changesOfTexts(double seconds) const {
        return seconds < fadeIn ? all() : view_.changedBetween(last_, seconds);
    }

    QuoteView view_;
    QImage frame_;
    QuotePicture picture_;
    BackdropPainter painter_;
    double last_ = -1;
    qint64 tick_ = -1;
    double backdropAt_ = 0;
};

struct Costs {
    double sum = 0;
    double dearest = 0;

    void add(double spent, bool first) {
        sum += spent;
        // The first frame sets up the backdrop in any manner.
        dearest = first ? dearest : std::max(dearest, spent);
    }
};

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void entrance(benchmark::State& state, TextAnim style) {
    const QuoteViewState quotation = quoted(style, screenOf(state.range(0)));
    std::vector<double> changes;
    std::vector<double> everything;
    std::vector<double> ratios;
    std::vector<double> dearest;
    for ([[maybe_unused]] auto _ : state) {
        Window thrifty(quotation);
        Window wasteful(quotation);
        Costs less;
        Costs more;
        for (int i = 0; i < entranceEnd * 60; ++i) {
            const double before = processorTime();
            thrifty.paintChanges(i / 60.0);
            const double between = processorTime();
            wasteful.paintEverything(i / 60.0);
            less.add(between - before, i == 0);
            more.add(processorTime() - between, i == 0);
        }
        changes.push_back(less.sum);
        everything.push_back(more.sum);
        ratios.push_back(less.sum / more.sum);
        dearest.push_back(less.dearest / more.dearest);
    }
    state.counters["changes_ms"] = median(changes);
    state.counters["everything_ms"] = median(everything);
    state.counters["ratio"] = median(ratios);
    state.counters["dearest_ratio"] = median(dearest);
}

BENCHMARK_CAPTURE(entrance, fade, TextAnim::Fade)->DenseRange(0, 2)->Iterations(5);
BENCHMARK_CAPTURE(entrance, rise, TextAnim::Rise)->DenseRange(0, 2)->Iterations(5);
BENCHMARK_CAPTURE(entrance, blur, TextAnim::Blur)->DenseRange(0, 2)->Iterations(5);
BENCHMARK_CAPTURE(entrance, typewriter, TextAnim::Typewriter)->DenseRange(0, 2)->Iterations(5);
BENCHMARK_CAPTURE(entrance, handwrite, TextAnim::Handwrite)->DenseRange(0, 2)->Iterations(5);

} // namespace
