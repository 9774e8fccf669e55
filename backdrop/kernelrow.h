// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/processor.h"

#include <QtGlobal>

#include <array>

namespace morrowleaf {

// One row of pixels in whole blocks of 8, as an implementation of the kernel draws it.
struct KernelRow {
    const qint16* nodes = nullptr;  // nodes of this row, from its first cell
    const qint16* across = nullptr; // weights of a cell's pixels, four lanes each, 32768 is 1
    int blocksPerCell = 1;
    int cell = 8;                 // pixels; below 8 only for kernelRowFine()
    const qint16* tile = nullptr; // of this row, with its overhang
    int tileSize = 0;
    std::array<const quint32*, 3> pictures{}; // of this row, from column 0
    std::array<quint16, 3> weights{};         // 16384 is 1
    int pictureCount = 0;
    bool multiply = false;
    quint32* out = nullptr; // of this row, from column 0
};

// Draws the blocks from `first` (inclusive) to `last` (exclusive).
using RowFunction = void (*)(const KernelRow& row, int first, int last);
void kernelRowPortable(const KernelRow& row, int first, int last);
void kernelRowAvx2(const KernelRow& row, int first, int last);
// For small pictures, whose cells are below 8 pixels; speed does not matter there.
void kernelRowFine(const KernelRow& row, int first, int last);

// out = above + (below - above) * weight / 32768, for `count` lanes. `out` overlaps neither.
using MixFunction = void (*)(const qint16* above, const qint16* below, qint16 weight, qint16* out,
                             int count);
void mixRowsPortable(const qint16* above, const qint16* below, qint16 weight, qint16* out,
                     int count);
void mixRowsAvx2(const qint16* above, const qint16* below, qint16 weight, qint16* out, int count);

} // namespace morrowleaf
