#include "hash/crc32_folding.h"

#define TARVELON_TARGET_256 gnu::target("avx2,pclmul,vpclmulqdq")

namespace tarvelon {

namespace folding {

namespace {

[[TARVELON_TARGET_256, gnu::always_inline]] inline __m256i load256(const unsigned char* from) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
}

[[TARVELON_TARGET_256, gnu::always_inline]] inline __m256i spread256(Keys keys) {
    return _mm256_set_epi64x(keys.high, keys.low, keys.high, keys.low);
}

[[TARVELON_TARGET_256, gnu::always_inline]] inline __m256i fold256(__m256i value, __m256i keys,
                                                                   __m256i message) {
    const __m256i low = _mm256_clmulepi64_epi128(value, keys, lowLanes);
    const __m256i high = _mm256_clmulepi64_epi128(value, keys, highLanes);
    return _mm256_xor_si256(_mm256_xor_si256(low, high), message);
}

} // namespace

} // namespace folding

[[TARVELON_TARGET_256, gnu::force_align_arg_pointer]] std::uint32_t
crc32Fold256(std::uint32_t state, std::span<const unsigned char> bytes) {
    using namespace folding;
    constexpr std::size_t step = 128;
    if (bytes.size() < step) {
        return crc32Fold128(state, bytes);
    }

    const unsigned char* from = bytes.data();
    __m256i a =
        _mm256_xor_si256(load256(from), _mm256_zextsi128_si256(_mm_cvtsi32_si128(static_cast<int>(state))));
    __m256i b = load256(from + 32);
    __m256i c = load256(from + 64);
    __m256i d = load256(from + 96);

    const __m256i stepKeys = spread256(keysFor(step));
    std::span<const unsigned char> rest = bytes.subspan(step);
    for (; rest.size() >= step; rest = rest.subspan(step)) {
        from = rest.data();
        a = fold256(a, stepKeys, load256(from));
        b = fold256(b, stepKeys, load256(from + 32));
        c = fold256(c, stepKeys, load256(from + 64));
        d = fold256(d, stepKeys, load256(from + 96));
    }

    const __m256i keys32 = spread256(keysFor(32));
    const __m256i wide = fold256(fold256(fold256(a, keys32, b), keys32, c), keys32, d);
    const __m128i value =
        fold128(_mm256_castsi256_si128(wide), spread128(keys16), _mm256_extracti128_si256(wide, 1));
    return finish(value, rest);
}

} // namespace tarvelon
