#include "screen/meshsurface.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

struct Place {
    double u = 0;
    double v = 0;
};

constexpr double paramMin = -0.06;
constexpr double paramMax = 2.06;
constexpr double leastDeterminant = 0.01;
constexpr int mostSteps = 16;
constexpr double closeEnough = 1e-7;

// Newton's method for the parameters at which the surface passes through (x, y).
Place placeOf(const MeshPoints& points, double x, double y, Place guess) {
    for (int step = 0; step < mostSteps; ++step) {
        const KnotWeights across = knotWeights(guess.u);
        const KnotWeights down = knotWeights(guess.v);
        double px = 0, py = 0, xu = 0, xv = 0, yu = 0, yv = 0;
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                const MeshPoint& p = points[row * 3 + column];
                const double value = across.value[column] * down.value[row];
                const double byU = across.slope[column] * down.value[row];
                const double byV = across.value[column] * down.slope[row];
                px += value * double(p.x);
                py += value * double(p.y);
                xu += byU * double(p.x);
                yu += byU * double(p.y);
                xv += byV * double(p.x);
                yv += byV * double(p.y);
            }
        }
        const double ex = x - px;
        const double ey = y - py;
        if (std::abs(ex) + std::abs(ey) < closeEnough)
            break;
        const double determinant = std::max(xu * yv - xv * yu, leastDeterminant);
        guess.u = std::clamp(guess.u + (ex * yv - ey * xv) / determinant, paramMin, paramMax);
        guess.v = std::clamp(guess.v + (ey * xu - ex * yu) / determinant, paramMin, paramMax);
    }
    return guess;
}

Rgb colourAt(std::span<const QColor, 9> colors, Place place) {
    const KnotWeights across = knotWeights(place.u);
    const KnotWeights down = knotWeights(place.v);
    double r = 0, g = 0, b = 0;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const double weight = across.value[column] * down.value[row];
            const QColor& color = colors[row * 3 + column];
            r += weight * double(color.redF());
            g += weight * double(color.greenF());
            b += weight * double(color.blueF());
        }
    }
    const auto unit = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return {unit(r), unit(g), unit(b)};
}

std::array<double, 4> splineWeights(double s) {
    return {((-0.5 * s + 1) * s - 0.5) * s, (1.5 * s - 2.5) * s * s + 1,
            ((-1.5 * s + 2) * s + 0.5) * s, (0.5 * s - 0.5) * s * s};
}

} // namespace

KnotWeights knotWeights(double u) {
    const bool mirrored = u > 1;
    const double s = mirrored ? 2 - u : u;
    const double near = ((0.5 * s - 0.5) * s - 1) * s + 1;
    const double middle = ((-s + 1) * s + 1) * s;
    const double far = (0.5 * s - 0.5) * s * s;
    const double nearSlope = (1.5 * s - 1) * s - 1;
    const double middleSlope = (-3 * s + 2) * s + 1;
    const double farSlope = (1.5 * s - 1) * s;
    if (mirrored)
        return {{far, middle, near}, {-farSlope, -middleSlope, -nearSlope}};
    return {{near, middle, far}, {nearSlope, middleSlope, farSlope}};
}

MeshLattice::MeshLattice(const MeshPoints& points, std::span<const QColor, 9> colors)
    : nodes_(static_cast<std::size_t>(stride * (rows + 3))) {
    // Each node starts where its upper neighbour ended, so the picture depends
    // on the points alone and not on an earlier one.
    std::array<Place, stride> places;
    for (int i = 0; i < stride; ++i)
        places[static_cast<std::size_t>(i)] = {2.0 * (i - 1) / columns, -1.0 / rows};
    for (int j = 0; j < rows + 3; ++j) {
        for (int i = 0; i < stride; ++i) {
            Place& place = places[static_cast<std::size_t>(i)];
            place = placeOf(points, double(i - 1) / columns, double(j - 1) / rows, place);
            nodes_[static_cast<std::size_t>(j * stride + i)] = colourAt(colors, place);
        }
    }
}

Rgb MeshLattice::at(double x, double y) const {
    const double across = std::clamp(x, 0.0, 1.0) * columns;
    const double down = std::clamp(y, 0.0, 1.0) * rows;
    const int i = std::min(static_cast<int>(across), columns - 1);
    const int j = std::min(static_cast<int>(down), rows - 1);
    const std::array<double, 4> wx = splineWeights(across - i);
    const std::array<double, 4> wy = splineWeights(down - j);
    double r = 0, g = 0, b = 0;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            const double weight =
                wx[static_cast<std::size_t>(column)] * wy[static_cast<std::size_t>(row)];
            const Rgb& color = node(i + column - 1, j + row - 1);
            r += weight * double(color.r);
            g += weight * double(color.g);
            b += weight * double(color.b);
        }
    }
    return {static_cast<float>(r), static_cast<float>(g), static_cast<float>(b)};
}

} // namespace morrowleaf
