// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/kernelrow.h"

#include <algorithm>

namespace morrowleaf {

namespace {

constexpr int lanes = 32; // of a block of 8 pixels

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
