// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/showntiles.h"

#include "backdrop/keynodes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace morrowleaf {

namespace {

// Window systems copy narrow rectangles at twice the cost per pixel.
constexpr int leastWidth = 256; // pixels
// Half as high, tiles would save 4 percent of the pixels and double the rectangles.
constexpr int leastHeight = 64;
constexpr int wholeStep = 20; // points; whole device pixels at every multiple of 0.05

// Waking up costs as much as painting some tiles. A tile that can stay long is therefore
// painted together with others, when it has had most of its time.
constexpr double longStay = 0.25;     // seconds
constexpr double spareTime = 1.0 / 8; // of a long stay

constexpr double never = std::numeric_limits<double>::infinity();

int widestGap(const qint16* a, const qint16* b, int count) {
    qint16 widest = 0;
    for (int i = 0; i < count; ++i) {
        const auto gap = static_cast<qint16>(a[i] - b[i]);
        const auto size = gap < 0 ? static_cast<qint16>(-gap) : gap;
        widest = size > widest ? size : widest;
    }
    return widest;
}

// A share of 0.1...1 for each tile, evenly spread and different from its neighbours'.
double shareOf(std::size_t tile) {
    constexpr double goldenRatio = 0.6180339887498949;
    const double turns = static_cast<double>(tile) * goldenRatio;
    return 0.1 + 0.9 * (turns - std::floor(turns));
}

int roundedUp(int value, int step) {
    return (value + step - 1) / step * step;
}

} // namespace

QSize ShownTiles::tileSize(const QSize& window, double devicePixelRatio) {
    if (devicePixelRatio == std::floor(devicePixelRatio)) {
        const int cell = NodeGrid::cellFor(window, devicePixelRatio);
        const int step = cell % static_cast<int>(devicePixelRatio) == 0
                             ? cell
                             : cell * static_cast<int>(devicePixelRatio);
        return {roundedUp(leastWidth, step), roundedUp(leastHeight, step)};
    }
    const double step = wholeStep * devicePixelRatio;
    const int pixels = static_cast<int>(std::lround(step));
    if (pixels < 1 || std::abs(step - pixels) > 1e-6) {
        return window;
    }
    return {roundedUp(leastWidth, pixels), roundedUp(leastHeight, pixels)};
}

bool ShownTiles::fits(const KeyNodes& keys) const {
    return keys.scene() && !tiles_.empty() && keys.scene()->size == window_ &&
           keys.scene()->ratio == ratio_;
}

void ShownTiles::layOut(KeyNodes& keys) {
    window_ = keys.scene()->size;
    ratio_ = keys.scene()->ratio;
    size_ = tileSize(window_, ratio_);
    across_ = std::max(1, window_.width() / size_.width());
    tiles_.clear();
    std::size_t lanes = 0;
    const int cell = NodeGrid::cellFor(window_, ratio_);
    for (int y = 0; y < window_.height(); y += size_.height()) {
        for (int i = 0; i < across_; ++i) {
            Tile tile;
            const int x = i * size_.width();
            // The last one in a row takes what would be too narrow for another.
            const int width = i + 1 < across_ ? size_.width() : window_.width() - x;
            tile.pixels = QRect(x, y, width, std::min(size_.height(), window_.height() - y));
            tile.column = x / cell;
            tile.row = y / cell;
            tile.columns = tile.pixels.right() / cell + 2 - tile.column;
            tile.rows = tile.pixels.bottom() / cell + 2 - tile.row;
            tile.lanes = lanes;
            tile.due = -never;
            lanes += static_cast<std::size_t>(tile.columns * tile.rows) * 4;
            tiles_.push_back(tile);
        }
    }
    lanes_.assign(lanes, 0);
}

void ShownTiles::keepNodes(const Tile& tile, KeyNodes& keys, double since2001) {
    const KeyPlace place = keys.place(since2001);
    qint16* to = lanes_.data() + tile.lanes;
    for (int row = 0; row < tile.rows; ++row, to += tile.columns * 4) {
        keys.mix(place, tile.row + row, tile.column, tile.columns, to);
    }
}

// The widest gap between the nodes that a tile was drawn with and others, of which
// `first` is the top left one in a grid of `columns`.
int ShownTiles::gapTo(const Tile& tile, const qint16* first, int columns) const {
    const qint16* drawn = lanes_.data() + tile.lanes;
    int widest = 0;
    for (int row = 0; row < tile.rows; ++row) {
        widest = std::max(widest, widestGap(drawn, first, tile.columns * 4));
        drawn += tile.columns * 4;
        first += columns * 4;
    }
    return widest;
}

// Nodes move in straight lines between keys, so that within an interval the gap is a
// convex function of time: the chord between two instants crosses the bound no later
// than the gap itself.
double ShownTiles::dueFrom(const Tile& tile, KeyNodes& keys, int gap, double since2001) const {
    double at = since2001;
    const qint64 before = keys.place(since2001).index;
    for (const qint64 index : {before + 1, before + 2}) {
        if (gap > tile.bound) {
            return at;
        }
        const NodeGrid& key = keys.key(index);
        const double next = keys.instant(index);
        const int then = gapTo(tile, key.row(tile.row) + tile.column * 4, key.columns);
        if (then > tile.bound) {
            return at + (next - at) * (tile.bound - gap) / (then - gap);
        }
        gap = then;
        at = next;
    }
    return never;
}

// Brings the due instants up to the keys around `since2001`.
void ShownTiles::lookAhead(KeyNodes& keys, double since2001) {
    const KeyPlace place = keys.place(since2001);
    const bool onwards = known_ && since2001 >= last_;
    last_ = since2001;
    if (onwards && place.index == key_) {
        return;
    }
    const bool toNext = onwards && place.index == key_ + 1;
    key_ = place.index;
    known_ = true;
    std::vector<qint16> nodes;
    for (Tile& tile : tiles_) {
        if (tile.due == -never || (toNext && tile.due != never)) {
            continue;
        }
        nodes.resize(static_cast<std::size_t>(tile.columns * tile.rows) * 4);
        for (int row = 0; row < tile.rows; ++row) {
            keys.mix(place, tile.row + row, tile.column, tile.columns,
                     nodes.data() + static_cast<std::ptrdiff_t>(row) * tile.columns * 4);
        }
        tile.due = dueFrom(tile, keys, gapTo(tile, nodes.data(), tile.columns), since2001);
    }
}

void ShownTiles::record(const QRegion& region, KeyNodes& keys, double since2001) {
    if (!keys.scene()) {
        forget();
        return;
    }
    if (!fits(keys)) {
        layOut(keys);
    }
    if ((QRegion(QRect(QPoint(0, 0), window_)) - region).isEmpty()) {
        for (std::size_t i = 0; i < tiles_.size(); ++i) {
            // After a picture of a single instant the tiles must not stay in step.
            tiles_[i].bound = static_cast<int>(tileBound * shareOf(i));
            tiles_[i].painted = since2001;
            tiles_[i].due = never;
            keepNodes(tiles_[i], keys, since2001);
        }
        known_ = false; // so that the keys ahead are left to a cheaper frame
        return;
    }
    lookAhead(keys, since2001);
    for (const QRect& part : region) {
        const QRect rect = part & QRect(QPoint(0, 0), window_);
        for (int y = rect.top() / size_.height(); y <= rect.bottom() / size_.height(); ++y) {
            const int last = std::min(rect.right() / size_.width(), across_ - 1);
            for (int x = std::min(rect.left() / size_.width(), last); x <= last; ++x) {
                Tile& tile = tiles_[static_cast<std::size_t>(y * across_ + x)];
                if (!rect.contains(tile.pixels) && !(QRegion(tile.pixels) - region).isEmpty()) {
                    tile.due = -never;
                    continue;
                }
                tile.bound = tileBound;
                tile.painted = since2001;
                keepNodes(tile, keys, since2001);
                tile.due = dueFrom(tile, keys, 0, since2001);
            }
        }
    }
}

QRegion ShownTiles::outdated(KeyNodes& keys, double since2001, double until) {
    if (!fits(keys)) {
        return keys.scene() ? QRegion(QRect(QPoint(0, 0), keys.scene()->size)) : QRegion();
    }
    lookAhead(keys, since2001);
    QRegion due;
    if (std::ranges::none_of(tiles_, [until](const Tile& tile) { return tile.due < until; })) {
        return due;
    }
    for (const Tile& tile : tiles_) {
        const double stay = tile.due - tile.painted;
        if (tile.due < until || (stay > longStay && tile.due - spareTime * stay < until)) {
            due += tile.pixels;
        }
    }
    return due;
}

double ShownTiles::nextDue(KeyNodes& keys, double since2001) {
    double next = since2001 + longestWait;
    if (!fits(keys)) {
        return keys.scene() ? since2001 : next;
    }
    if (!known_) {
        return since2001;
    }
    lookAhead(keys, since2001);
    next = std::min(next, keys.instant(key_ + 2));
    for (const Tile& tile : tiles_) {
        next = std::min(next, tile.due);
    }
    return std::max(next, since2001);
}

} // namespace morrowleaf
