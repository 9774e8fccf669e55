// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/kernelrow.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <immintrin.h>

#define MORROWLEAF_AVX2 __attribute__((target("avx2")))

namespace morrowleaf {

namespace {

// Widens four pixels to 16 lanes in 256ths of a level.
MORROWLEAF_AVX2 inline __m256i widened(const quint32* pixels) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
    return _mm256_slli_epi16(_mm256_cvtepu8_epi16(bytes), 8);
}

MORROWLEAF_AVX2 inline __m256i loaded(const qint16* lanes) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(lanes));
}

MORROWLEAF_AVX2 inline __m256i repeated(const qint16* node) {
    return _mm256_broadcastq_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(node)));
}

template <bool pictures>
MORROWLEAF_AVX2 void blocks(const KernelRow& row, int first, int last) {
    int offset = first * 8 % row.tileSize;
    int cell = first / row.blocksPerCell;
    int within = first % row.blocksPerCell;
    int index = first;
    while (index < last) {
        const qint16* node = row.nodes + cell * 4;
        const __m256i near = repeated(node);
        const __m256i gap = _mm256_sub_epi16(repeated(node + 4), near);
        const __m256i step = _mm256_add_epi16(gap, gap);
        for (; within < row.blocksPerCell && index < last; ++within, ++index) {
            const qint16* across = row.across + within * 32;
            __m256i left = _mm256_add_epi16(near, _mm256_mulhi_epi16(step, loaded(across)));
            __m256i right = _mm256_add_epi16(near, _mm256_mulhi_epi16(step, loaded(across + 16)));
            if constexpr (pictures) {
                for (int p = 0; p < row.pictureCount; ++p) {
                    const quint32* from = row.pictures[static_cast<std::size_t>(p)] + index * 8;
                    const __m256i a = widened(from);
                    const __m256i b = widened(from + 4);
                    if (row.multiply) {
                        left = _mm256_mulhi_epu16(a, left);
                        right = _mm256_mulhi_epu16(b, right);
                    } else {
                        const __m256i weight = _mm256_set1_epi16(
                            static_cast<qint16>(row.weights[static_cast<std::size_t>(p)]));
                        left = _mm256_add_epi16(left, _mm256_mulhi_epu16(a, weight));
                        right = _mm256_add_epi16(right, _mm256_mulhi_epu16(b, weight));
                    }
                }
            }
            const qint16* tile = row.tile + offset * 4;
            left = _mm256_srai_epi16(_mm256_adds_epi16(left, loaded(tile)), 6);
            right = _mm256_srai_epi16(_mm256_adds_epi16(right, loaded(tile + 16)), 6);
            const __m256i packed = _mm256_permute4x64_epi64(_mm256_packus_epi16(left, right), 0xD8);
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(row.out + index * 8), packed);
            offset += 8;
            while (offset >= row.tileSize) {
                offset -= row.tileSize;
            }
        }
        within = 0;
        ++cell;
    }
}

// The most frequent frame: only the mesh, with one block in a cell. The weights
// stay in registers, and the loop needs no division.
MORROWLEAF_AVX2 void plainBlocks(const KernelRow& row, int first, int last) {
    const __m256i acrossLeft = loaded(row.across);
    const __m256i acrossRight = loaded(row.across + 16);
    const qint16* node = row.nodes + first * 4;
    const qint16* tile = row.tile + first * 8 % row.tileSize * 4;
    const qint16* const tileEnd = row.tile + row.tileSize * 4;
    auto* out = reinterpret_cast<__m128i*>(row.out + first * 8);
    __m256i near = repeated(node);
    for (int index = first; index < last; ++index) {
        node += 4;
        const __m256i next = repeated(node);
        const __m256i gap = _mm256_sub_epi16(next, near);
        const __m256i step = _mm256_add_epi16(gap, gap);
        __m256i left = _mm256_add_epi16(near, _mm256_mulhi_epi16(step, acrossLeft));
        __m256i right = _mm256_add_epi16(near, _mm256_mulhi_epi16(step, acrossRight));
        left = _mm256_srai_epi16(_mm256_adds_epi16(left, loaded(tile)), 6);
        right = _mm256_srai_epi16(_mm256_adds_epi16(right, loaded(tile + 16)), 6);
        const __m256i packed = _mm256_permute4x64_epi64(_mm256_packus_epi16(left, right), 0xD8);
        // QImage data begins 16 bytes into a cache line, so stores of 32 bytes
        // would cross lines.
        _mm_storeu_si128(out, _mm256_castsi256_si128(packed));
        _mm_storeu_si128(out + 1, _mm256_extracti128_si256(packed, 1));
        out += 2;
        tile += 32;
        if (tile >= tileEnd) {
            tile -= row.tileSize * 4;
        }
        near = next;
    }
}

} // namespace

MORROWLEAF_AVX2 void kernelRowAvx2(const KernelRow& row, int first, int last) {
    if (row.pictureCount > 0) {
        blocks<true>(row, first, last);
    } else if (row.blocksPerCell == 1 && row.tileSize >= 8) {
        plainBlocks(row, first, last);
    } else {
        blocks<false>(row, first, last);
    }
}

MORROWLEAF_AVX2 void mixRowsAvx2(const qint16* above, const qint16* below, qint16 weight,
                                 qint16* out, int count) {
    constexpr int width = 16; // lanes
    const __m256i share = _mm256_set1_epi16(weight);
    int i = 0;
    while (count - i >= width) {
        const __m256i from = loaded(above + i);
        const __m256i gap = _mm256_sub_epi16(loaded(below + i), from);
        const __m256i mixed =
            _mm256_add_epi16(from, _mm256_mulhi_epi16(_mm256_add_epi16(gap, gap), share));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i), mixed);
        i += width;
        if (i < count && i + width > count) {
            i = count - width; // computes some lanes twice
        }
    }
    mixRowsPortable(above + i, below + i, weight, out + i, count - i);
}

} // namespace morrowleaf

#else

namespace morrowleaf {

void kernelRowAvx2(const KernelRow& row, int first, int last) {
    kernelRowPortable(row, first, last);
}

void mixRowsAvx2(const qint16* above, const qint16* below, qint16 weight, qint16* out, int count) {
    mixRowsPortable(above, below, weight, out, count);
}

} // namespace morrowleaf

#endif
