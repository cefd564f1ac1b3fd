#include "hash/crc32_folding.h"

#define TARVELON_TARGET_512 gnu::target("avx2,avx512f,pclmul,vpclmulqdq")

namespace tarvelon {

namespace folding {

namespace {

[[TARVELON_TARGET_512, gnu::always_inline]] inline __m512i load512(const unsigned char* from) {
    return _mm512_loadu_si512(from);
}

[[TARVELON_TARGET_512, gnu::always_inline]] inline __m512i spread512(Keys keys) {
    return _mm512_set4_epi64(keys.high, keys.low, keys.high, keys.low);
}

[[TARVELON_TARGET_512, gnu::always_inline]] inline __m512i fold512(__m512i value, __m512i keys,
                                                                   __m512i message) {
    constexpr int xorOfThree = 0x96;
    return _mm512_ternarylogic_epi64(_mm512_clmulepi64_epi128(value, keys, lowLanes),
                                     _mm512_clmulepi64_epi128(value, keys, highLanes), message, xorOfThree);
}

/// One of the register's four quarters. (The plain extraction sets off a false warning in GCC 12.)
template<int index>
[[TARVELON_TARGET_512, gnu::always_inline]] inline __m128i quarter(__m512i value) {
    return _mm512_maskz_extracti32x4_epi32(0xF, value, index);
}

} // namespace

} // namespace folding

[[TARVELON_TARGET_512, gnu::force_align_arg_pointer]] std::uint32_t
crc32Fold512(std::uint32_t state, std::span<const unsigned char> bytes) {
    using namespace folding;
    constexpr std::size_t step = 256;
    if (bytes.size() < step) {
        return crc32Fold128(state, bytes);
    }

    const unsigned char* from = bytes.data();
    __m512i a =
        _mm512_xor_si512(load512(from), _mm512_zextsi128_si512(_mm_cvtsi32_si128(static_cast<int>(state))));
    __m512i b = load512(from + 64);
    __m512i c = load512(from + 128);
    __m512i d = load512(from + 192);

    const __m512i stepKeys = spread512(keysFor(step));
    std::span<const unsigned char> rest = bytes.subspan(step);
    for (; rest.size() >= step; rest = rest.subspan(step)) {
        from = rest.data();
        a = fold512(a, stepKeys, load512(from));
        b = fold512(b, stepKeys, load512(from + 64));
        c = fold512(c, stepKeys, load512(from + 128));
        d = fold512(d, stepKeys, load512(from + 192));
    }

    const __m512i keys64 = spread512(keysFor(64));
    __m512i wide = fold512(fold512(fold512(a, keys64, b), keys64, c), keys64, d);
    for (; rest.size() >= 64; rest = rest.subspan(64)) {
        wide = fold512(wide, keys64, load512(rest.data()));
    }

    const __m128i keys = spread128(keys16);
    __m128i value = quarter<0>(wide);
    value = fold128(value, keys, quarter<1>(wide));
    value = fold128(value, keys, quarter<2>(wide));
    value = fold128(value, keys, quarter<3>(wide));
    return finish(value, rest);
}

} // namespace tarvelon
