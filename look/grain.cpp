// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/grain.h"

namespace morrowleaf {

namespace {

GrainBytes makeGrain() {
    GrainBytes bytes;
    quint64 state = 0x9E3779B97F4A7C15;
    for (size_t pixel = 0; pixel < bytes.size(); pixel += 4) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        const auto grey = static_cast<quint8>(state >> 33);
        bytes[pixel] = grey;
        bytes[pixel + 1] = grey;
        bytes[pixel + 2] = grey;
        bytes[pixel + 3] = 0xFF;
    }
    return bytes;
}

} // namespace

const GrainBytes& grain() {
    static const GrainBytes bytes = makeGrain();
    return bytes;
}

} // namespace morrowleaf
