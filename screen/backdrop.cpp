#include "screen/backdrop.h"

#include "screen/ground/grain.h"
#include "screen/meshdrift.h"
#include "screen/meshsurface.h"
#include "screen/vignette.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr double leastTransparency = 0.01;

struct Pixel {
    double r = 0, g = 0, b = 0, a = 0; // premultiplied, 0...1
};

quint8 grainByte(double x, double y) {
    const auto wrapped = [](double at) {
        return static_cast<std::size_t>(static_cast<qint64>(std::floor(at)) % grainSize);
    };
    return grain()[(wrapped(y) * grainSize + wrapped(x)) * 4];
}

} // namespace

struct BackdropPainter::Private {};

BackdropPainter::BackdropPainter()
    : d_(std::make_unique<Private>()) {}

BackdropPainter::~BackdropPainter() = default;

bool BackdropPainter::moves(const BackdropState& state) {
    return state.animated && !state.hasPhoto && state.screenAnim != ScreenAnim::Still;
}

void BackdropPainter::paint(QImage& target, const QRect& clip, const BackdropState& state,
                            double since2001) {
    const QRect area = clip & target.rect();
    if (area.isEmpty())
        return;
    const double ratio = target.devicePixelRatio();
    const double phase = since2001 * speed(state.screenAnim);
    const double scale = backdropScale(state.screenAnim, phase);
    const MeshLattice mesh(meshDrift(phase, amplitude(state.screenAnim)), state.palette.colors);
    const double strength =
        state.vignette * (state.palette.light && !state.hasPhoto ? lightVignette : 1);
    const bool seenThrough = state.behind.kind != Behind::Kind::Nothing;
    const double t = std::clamp(state.transparency, 0.0, 1.0);
    const double opacity = seenThrough ? 1 - t : 1;
    const double glass = t > leastTransparency ? std::min((1 - t) * 4, 1.0) : 0;
    const double tintOpacity = ((1 - t) * 0.5 + 0.06) * glass;
    const QColor tint = state.palette.colors[4];
    const double grainAmount = state.grainOn ? grainOpacity : 0;
    const double width = target.width() / ratio;
    const double height = target.height() / ratio;

    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(target.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            const double px = (x + 0.5) / ratio;
            const double py = (y + 0.5) / ratio;
            Rgb ground =
                mesh.at((px / width - 0.5) / scale + 0.5, (py / height - 0.5) / scale + 0.5);
            if (state.hasPhoto && !state.photo.isNull()) {
                const QRgb photo = state.photo.pixel(std::min(x, state.photo.width() - 1),
                                                     std::min(y, state.photo.height() - 1));
                const auto shade = [&](float from, int to) {
                    return static_cast<float>(double(from) * (1 - state.photoOpacity) +
                                              to / 255.0 * 0.7 * state.photoOpacity);
                };
                ground = {shade(ground.r, qRed(photo)), shade(ground.g, qGreen(photo)),
                          shade(ground.b, qBlue(photo))};
            }
            const double lit =
                1 - vignetteAt(std::hypot(px - width / 2, py - height / 2), strength);
            const double noise = grainByte(px, py) / 255.0;
            Pixel under;
            if (seenThrough) {
                under = {tint.redF() * tintOpacity, tint.greenF() * tintOpacity,
                         tint.blueF() * tintOpacity, tintOpacity};
                if (state.behind.kind == Behind::Kind::Captured && !state.behind.picture.isNull()) {
                    const QRgb desktop =
                        state.behind.picture.pixel(std::min(x, state.behind.picture.width() - 1),
                                                   std::min(y, state.behind.picture.height() - 1));
                    const double rest = 1 - tintOpacity;
                    under = {under.r + qRed(desktop) / 255.0 * rest,
                             under.g + qGreen(desktop) / 255.0 * rest,
                             under.b + qBlue(desktop) / 255.0 * rest, 1};
                }
            }
            const auto mix = [&](float colour, double below) {
                const double top = double(colour) * lit * (1 - grainAmount) + noise * grainAmount;
                return top * opacity + below * (1 - opacity);
            };
            const double dither = noise;
            const auto level = [&](double value) {
                return std::clamp(static_cast<int>(value * 255 + dither), 0, 255);
            };
            line[x] =
                qRgba(level(mix(ground.r, under.r)), level(mix(ground.g, under.g)),
                      level(mix(ground.b, under.b)), level(opacity + under.a * (1 - opacity)));
        }
    }
}

} // namespace morrowleaf
