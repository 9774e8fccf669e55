#include "screen/kernelrow.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <immintrin.h>

#define MORROWLEAF_AVX2 __attribute__((target("avx2")))

namespace morrowleaf {

namespace {

// Eight bytes' worth of pixels to lanes of 256ths.
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
            while (offset >= row.tileSize)
                offset -= row.tileSize;
        }
        within = 0;
        ++cell;
    }
}

} // namespace

MORROWLEAF_AVX2 void kernelRowAvx2(const KernelRow& row, int first, int last) {
    if (row.pictureCount > 0)
        blocks<true>(row, first, last);
    else
        blocks<false>(row, first, last);
}

bool hasAvx2() {
    return __builtin_cpu_supports("avx2") != 0;
}

} // namespace morrowleaf

#else

namespace morrowleaf {

void kernelRowAvx2(const KernelRow& row, int first, int last) {
    kernelRowPortable(row, first, last);
}

bool hasAvx2() {
    return false;
}

} // namespace morrowleaf

#endif
