// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QRegion>
#include <QSize>

#include <vector>

namespace morrowleaf {

class KeyNodes;

// A tile is drawn again before a node in it is further than this from what the tile
// was drawn with, in 64ths of a level: 0.34 of a level. Half a level would be seen on dark
// ground, where it is two or three percent of the luminance.
inline constexpr int tileBound = 22;

// Knows what each tile of a window shows of a moving backdrop, and therefore when it
// has to be painted again. Most of a backdrop changes by a fraction of a level in a
// second; grain and dither stand still, so that a tile which is a little late has no
// seam. It paints nothing itself. All regions are in device pixels.
class ShownTiles {
public:
    // Tells that `region` shows the scene of `keys` at an instant. A tile that was
    // painted in part will be painted whole as soon as possible.
    void record(const QRegion& region, KeyNodes& keys, double since2001);
    // Everything is to be painted again.
    void forget() { tiles_.clear(); }

    // The tiles that would be off by more than the bound before the instant `until` if
    // they were not painted at `since2001`, with those that would follow soon; everything if
    // nothing of this scene was painted.
    QRegion outdated(KeyNodes& keys, double since2001, double until);
    // The instant at which to ask again: when the first tile is due, at most
    // longestWait seconds after `since2001`.
    double nextDue(KeyNodes& keys, double since2001);
    static constexpr double longestWait = 0.5;

    // The size of a tile that is not at the edge: whole points, and whole cells where the
    // ratio is a whole number; the size of the window if no tile would end on a whole point.
    static QSize tileSize(const QSize& window, double devicePixelRatio);

private:
    struct Tile {
        QRect pixels;
        int column = 0; // of the first node
        int row = 0;
        int columns = 0; // nodes, those of both edges included
        int rows = 0;
        std::size_t lanes = 0; // index of the first lane in lanes_
        int bound = tileBound;
        double painted = 0; // an instant
        double due = 0;
    };

    bool fits(const KeyNodes& keys) const;
    void layOut(KeyNodes& keys);
    void keepNodes(const Tile& tile, KeyNodes& keys, double since2001);
    int gapTo(const Tile& tile, const qint16* first, int columns) const;
    double dueFrom(const Tile& tile, KeyNodes& keys, int gap, double since2001) const;
    void lookAhead(KeyNodes& keys, double since2001);

    QSize window_;
    double ratio_ = 0;
    QSize size_;     // of a tile that is not at the edge
    int across_ = 0; // tiles in a row
    std::vector<Tile> tiles_;
    std::vector<qint16> lanes_;
    bool known_ = false; // the due instants, to the end of the interval after key_
    qint64 key_ = 0;
    double last_ = 0;
};

} // namespace morrowleaf
