// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

namespace morrowleaf {

// The weights of the four knots around one span of a Catmull-Rom spline, at the fraction
// `s` (0...1) of the way from the second knot to the third. The spline is the cubic
// Hermite curve whose tangent at each knot is half the difference of its neighbours.
template <typename Real>
constexpr std::array<Real, 4> catmullRom(Real s) {
    constexpr auto half = static_cast<Real>(0.5);
    constexpr auto threeHalves = static_cast<Real>(1.5);
    constexpr auto fiveHalves = static_cast<Real>(2.5);
    return {((-half * s + 1) * s - half) * s, (threeHalves * s - fiveHalves) * s * s + 1,
            ((-threeHalves * s + 2) * s + half) * s, (half * s - half) * s * s};
}

// The weights of three knots at 0, 1 and 2, or the derivatives of the weights.
template <typename Real>
struct ThreeKnots {
    Real first, middle, last;
};

// The weights of a spline with knots at 0, 1 and 2, at the parameter `u` (0...2). At
// each end the tangent is the difference to the only neighbour; the second half
// mirrors the first. The code has no branches, so that the compiler can vectorise it.
template <typename Real>
[[gnu::always_inline]] constexpr ThreeKnots<Real> threeKnotValues(Real u) {
    constexpr auto half = static_cast<Real>(0.5);
    const bool mirrored = u > 1;
    const Real s = mirrored ? 2 - u : u;
    const Real near = ((half * s - half) * s - 1) * s + 1;
    const Real middle = ((-s + 1) * s + 1) * s;
    const Real far = (half * s - half) * s * s;
    return {mirrored ? far : near, middle, mirrored ? near : far};
}

// The derivatives of these weights with respect to `u`.
template <typename Real>
[[gnu::always_inline]] constexpr ThreeKnots<Real> threeKnotSlopes(Real u) {
    constexpr auto threeHalves = static_cast<Real>(1.5);
    const bool mirrored = u > 1;
    const Real s = mirrored ? 2 - u : u;
    const Real near = (threeHalves * s - 1) * s - 1;
    const Real middle = (-3 * s + 2) * s + 1;
    const Real far = (threeHalves * s - 1) * s;
    return {mirrored ? -far : near, mirrored ? -middle : middle, mirrored ? -near : far};
}

} // namespace morrowleaf
