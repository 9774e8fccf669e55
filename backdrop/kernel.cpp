// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/kernel.h"

#include "backdrop/kernelrow.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace morrowleaf {

namespace {

constexpr int blockSize = 8; // pixels

// The interpolation weights at the centres of a cell's pixels, four lanes for each.
std::vector<qint16> cellWeights(int cell) {
    std::vector<qint16> weights(static_cast<std::size_t>(cell) * 4);
    for (std::size_t i = 0; i < weights.size(); ++i) {
        weights[i] =
            static_cast<qint16>(cell == 1 ? 0 : (2 * static_cast<int>(i / 4) + 1) * 16384 / cell);
    }
    return weights;
}

// Draws a block of which only a part is wanted, or that extends beyond the row:
// into a buffer, from which the pixels `from` to `to` (exclusive) are copied.
void drawPartly(RowFunction draw, const KernelRow& row, int index, int from, int to, int width) {
    std::array<std::array<quint32, blockSize>, 3> sources{};
    std::array<quint32, blockSize> pixels{};
    KernelRow beside = row;
    const int start = index * blockSize;
    const auto inside = static_cast<std::size_t>(std::clamp(width - start, 0, blockSize));
    for (std::size_t p = 0; p < static_cast<std::size_t>(row.pictureCount); ++p) {
        std::memcpy(sources.at(p).data(), row.pictures.at(p) + start, inside * sizeof(quint32));
        beside.pictures[p] = sources[p].data();
    }
    // For `beside` this block is the first of the row.
    const int cell = row.cell < blockSize ? start / row.cell : index / row.blocksPerCell;
    beside.nodes = row.nodes + cell * 4;
    beside.across = row.across + index % row.blocksPerCell * blockSize * 4;
    beside.blocksPerCell = 1;
    beside.tile = row.tile + start % row.tileSize * 4;
    beside.tileSize = blockSize;
    beside.out = pixels.data();
    draw(beside, 0, 1);
    std::copy(pixels.begin() + (from - start), pixels.begin() + (to - start), row.out + from);
}

constexpr int lanes = 32; // in a block of 8 pixels

inline qint16 high(qint16 a, qint16 b) {
    return static_cast<qint16>((qint32(a) * qint32(b)) >> 16);
}

inline quint16 highUnsigned(quint16 a, quint16 b) {
    return static_cast<quint16>((quint32(a) * quint32(b)) >> 16);
}

void block(const KernelRow& row, int index, const qint16* near, const qint16* step,
           const qint16* across) {
    const qint16* tile = row.tile + (index * 8 % row.tileSize) * 4;
    std::array<qint16, lanes> sum;
    for (std::size_t i = 0; i < lanes; ++i) {
        sum[i] = static_cast<qint16>(near[i] + high(step[i], across[i]));
    }
    for (int p = 0; p < row.pictureCount; ++p) {
        const auto n = static_cast<std::size_t>(p);
        const auto* bytes = reinterpret_cast<const quint8*>(row.pictures[n] + index * 8);
        if (row.multiply) {
            for (std::size_t i = 0; i < lanes; ++i) {
                sum[i] = static_cast<qint16>(highUnsigned(static_cast<quint16>(bytes[i] << 8),
                                                          static_cast<quint16>(sum[i])));
            }
        } else {
            for (std::size_t i = 0; i < lanes; ++i) {
                sum[i] = static_cast<qint16>(
                    sum[i] + highUnsigned(static_cast<quint16>(bytes[i] << 8), row.weights[n]));
            }
        }
    }
    auto* out = reinterpret_cast<quint8*>(row.out + index * 8);
    for (std::size_t i = 0; i < lanes; ++i) {
        const int level = (sum[i] + tile[i]) >> 6;
        out[i] = static_cast<quint8>(level < 0 ? 0 : level > 255 ? 255 : level);
    }
}

} // namespace

bool kernelPathAvailable(KernelPath path) {
    return path == KernelPath::Portable || hasAvx2();
}

KernelPath fastestKernelPath() {
    static const KernelPath path = hasAvx2() ? KernelPath::Avx2 : KernelPath::Portable;
    return path;
}

void runKernel(QImage& target, const QRect& clip, const KernelInput& input, KernelPath path) {
    const NodeGrid& nodes = *input.nodes;
    const bool fine = nodes.cell < blockSize;
    const RowFunction draw = fine                       ? kernelRowFine
                             : path == KernelPath::Avx2 ? kernelRowAvx2
                                                        : kernelRowPortable;
    const MixFunction mix = path == KernelPath::Avx2 ? mixRowsAvx2 : mixRowsPortable;
    const std::vector<qint16> weights = cellWeights(nodes.cell);
    // Some spare nodes, because the last block may extend beyond the last node.
    std::vector<qint16> mixed(static_cast<std::size_t>(nodes.columns + blockSize + 1) * 4);

    KernelRow row;
    row.nodes = mixed.data();
    row.across = weights.data();
    row.blocksPerCell = fine ? 1 : nodes.cell / blockSize;
    row.cell = nodes.cell;
    row.tileSize = input.tile->size();
    row.pictureCount = input.pictureCount;
    row.multiply = input.multiply;
    for (std::size_t p = 0; p < static_cast<std::size_t>(input.pictureCount); ++p) {
        row.weights[p] = static_cast<quint16>(
            std::lround(std::clamp(input.pictures[p].weight, 0.0, 1.0) * 16384));
    }

    const int left = clip.left();
    const int right = clip.left() + clip.width();
    const int firstWhole = (left + blockSize - 1) / blockSize;
    const int lastWhole = right / blockSize;
    const int firstNode = left / nodes.cell;
    const int lastNode = (right - 1) / nodes.cell + 1;
    // Called once, because a non-const scanLine() would check for sharing on every row.
    auto* pixels = reinterpret_cast<quint32*>(target.bits());
    const auto stride = target.bytesPerLine() / qsizetype(sizeof(quint32));
    for (int y = clip.top(); y <= clip.bottom(); ++y) {
        const int cell = y / nodes.cell;
        mix(nodes.row(cell) + firstNode * 4, nodes.row(cell + 1) + firstNode * 4,
            weights[static_cast<std::size_t>(y % nodes.cell) * 4], mixed.data() + firstNode * 4,
            (lastNode - firstNode + 1) * 4);
        row.tile = input.tile->row(y);
        for (std::size_t p = 0; p < static_cast<std::size_t>(input.pictureCount); ++p) {
            row.pictures[p] =
                reinterpret_cast<const quint32*>(input.pictures[p].image->constScanLine(y));
        }
        row.out = pixels + stride * y;
        if (firstWhole > lastWhole) { // the clip is within one block
            drawPartly(draw, row, left / blockSize, left, right, target.width());
            continue;
        }
        if (left % blockSize != 0) {
            drawPartly(draw, row, left / blockSize, left, firstWhole * blockSize, target.width());
        }
        draw(row, firstWhole, lastWhole);
        if (right % blockSize != 0) {
            drawPartly(draw, row, lastWhole, lastWhole * blockSize, right, target.width());
        }
    }
}

void kernelRowPortable(const KernelRow& row, int first, int last) {
    alignas(32) std::array<qint16, lanes> near;
    alignas(32) std::array<qint16, lanes> step;
    int cell = -1;
    for (int index = first; index < last; ++index) {
        if (index / row.blocksPerCell != cell) {
            cell = index / row.blocksPerCell;
            const qint16* node = row.nodes + cell * 4;
            for (std::size_t i = 0; i < lanes; ++i) {
                near[i] = node[i % 4];
                step[i] = static_cast<qint16>(2 * (node[i % 4 + 4] - node[i % 4]));
            }
        }
        block(row, index, near.data(), step.data(), row.across + index % row.blocksPerCell * lanes);
    }
}

void kernelRowFine(const KernelRow& row, int first, int last) {
    std::array<qint16, lanes> near;
    std::array<qint16, lanes> step;
    std::array<qint16, lanes> across;
    for (int index = first; index < last; ++index) {
        for (int i = 0; i < lanes; ++i) {
            const int x = index * 8 + i / 4;
            const qint16* node = row.nodes + x / row.cell * 4 + i % 4;
            const auto n = static_cast<std::size_t>(i);
            near[n] = node[0];
            step[n] = static_cast<qint16>(2 * (node[4] - node[0]));
            across[n] = row.across[x % row.cell * 4];
        }
        block(row, index, near.data(), step.data(), across.data());
    }
}

void mixRowsPortable(const qint16* above, const qint16* below, qint16 weight, qint16* out,
                     int count) {
    for (int i = 0; i < count; ++i) {
        out[i] = static_cast<qint16>(above[i] +
                                     high(static_cast<qint16>(2 * (below[i] - above[i])), weight));
    }
}

} // namespace morrowleaf
