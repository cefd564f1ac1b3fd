#include "hash/crc32_folding.h"

namespace tarvelon {

// The system calls window procedures on a 32-bit stack aligned to 4 bytes only, while spilled registers need
// 16: hence the realignment on entry.
[[TARVELON_TARGET_128, gnu::force_align_arg_pointer]] std::uint32_t
crc32Fold128(std::uint32_t state, std::span<const unsigned char> bytes) {
    using namespace folding;
    constexpr std::size_t step = 64;
    if (bytes.size() < step) {
        return crc32Portable(state, bytes);
    }

    const unsigned char* from = bytes.data();
    __m128i a = _mm_xor_si128(load128(from), _mm_cvtsi32_si128(static_cast<int>(state)));
    __m128i b = load128(from + 16);
    __m128i c = load128(from + 32);
    __m128i d = load128(from + 48);

    const __m128i stepKeys = spread128(keysFor(step));
    std::span<const unsigned char> rest = bytes.subspan(step);
    for (; rest.size() >= step; rest = rest.subspan(step)) {
        from = rest.data();
        a = fold128(a, stepKeys, load128(from));
        b = fold128(b, stepKeys, load128(from + 16));
        c = fold128(c, stepKeys, load128(from + 32));
        d = fold128(d, stepKeys, load128(from + 48));
    }

    const __m128i keys = spread128(keys16);
    return finish(fold128(fold128(fold128(a, keys, b), keys, c), keys, d), rest);
}

} // namespace tarvelon
