// CRC-32 by folding, for processors with a carry-less multiplication.
//
// A 128-bit register loaded from memory is, in the reflected order, a polynomial of degree 127: bit i is the
// coefficient of x^(127-i). Its low lane L and high lane H are polynomials of degree 63, so it holds
// L * x^64 + H. When D more bits of message follow, it counts as (L * x^64 + H) * x^D. Only the remainder
// matters, so the powers of x may be replaced by their own remainders, which have degree 31:
//
//     L * (x^(D+64) mod P) + H * (x^D mod P)
//
// has degree below 95 and fits a register again. That is folding: two multiplications move a register D bits
// forward, where the message found there is added to it. Several registers, each folding over all the others,
// keep the multiplier busy; in the end they are folded into one.
//
// A carry-less product of two reflected lanes comes out one power of x too high (its bit k is the sum of the
// factors' bits i + j = k, powers 63-i and 63-j, product power 126-k, but bit k stands for x^(127-k)), so the
// keys are taken one power lower.
//
// The last register is congruent to the whole message up to there. As state 0 and sixteen bytes of message
// it goes through the tables, which multiply it by x^32 and divide it by P.

#pragma once

#include "hash/crc32_kernels.h"

#include <cstddef>
#include <cstdint>
#include <immintrin.h>
#include <span>

namespace tarvelon::folding {

/// x^power mod P as a reflected lane: bit j is the coefficient of x^(63-j).
constexpr std::uint64_t powerLane(unsigned power) {
    std::uint32_t remainder = 0x80000000;
    for (; power > 0; --power) {
        remainder = (remainder >> 1) ^ ((remainder & 1) != 0 ? 0xEDB88320 : 0);
    }
    return std::uint64_t{remainder} << 32;
}

/// The two factors that move a register forward by a number of bytes.
struct Keys {
    long long low;
    long long high;
};

constexpr Keys keysFor(unsigned distance) {
    return {static_cast<long long>(powerLane(distance * 8 + 63)),
            static_cast<long long>(powerLane(distance * 8 - 1))};
}

inline constexpr Keys keys16 = keysFor(16);

/// Which lanes a multiplication takes.
inline constexpr int lowLanes = 0x00;
inline constexpr int highLanes = 0x11;

#define TARVELON_TARGET_128 gnu::target("sse2,pclmul")

[[TARVELON_TARGET_128, gnu::always_inline]] inline __m128i load128(const unsigned char* from) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

[[TARVELON_TARGET_128, gnu::always_inline]] inline __m128i spread128(Keys keys) {
    return _mm_set_epi64x(keys.high, keys.low);
}

[[TARVELON_TARGET_128, gnu::always_inline]] inline __m128i fold128(__m128i value, __m128i keys,
                                                                   __m128i message) {
    const __m128i low = _mm_clmulepi64_si128(value, keys, lowLanes);
    const __m128i high = _mm_clmulepi64_si128(value, keys, highLanes);
    return _mm_xor_si128(_mm_xor_si128(low, high), message);
}

/// The state behind `value` and the message bytes that follow it.
[[TARVELON_TARGET_128, gnu::always_inline]] inline std::uint32_t finish(__m128i value,
                                                                        std::span<const unsigned char> rest) {
    const __m128i keys = spread128(keys16);
    for (; rest.size() >= 16; rest = rest.subspan(16)) {
        value = fold128(value, keys, load128(rest.data()));
    }
    unsigned char remainder[16];
    _mm_storeu_si128(reinterpret_cast<__m128i*>(remainder), value);
    return crc32Portable(crc32Portable(0, remainder), rest);
}

} // namespace tarvelon::folding
