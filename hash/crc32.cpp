// CRC-32, and the mathematics behind all of its kernels.
//
// Bits are coefficients over the field of two elements, where adding is XOR. A message is then one long
// polynomial M(x), its first bit the highest power, and its CRC is the remainder of M(x) * x^32 divided by
//
//     P(x) = x^32 + x^26 + x^23 + x^22 + x^16 + x^12 + x^11 + x^10 + x^8 + x^7 + x^5 + x^4 + x^2 + x + 1.
//
// This CRC is reflected: within a byte the lowest bit comes first. So a 32-bit state keeps the coefficient of
// x^31 in bit 0 and that of x^0 in bit 31, multiplying by x is a shift to the right, and P without its x^32
// is 0xEDB88320. Starting with all ones, and complementing at the end, make zeros at either end count.
//
// One byte at a time (D. V. Sarwate, "Computation of cyclic redundancy checks via table look-up", 1988): the
// byte is added to the state's first eight coefficients; what these leave behind after division, eight
// powers further on, stands in a table of 256 remainders.
//
// Sixteen bytes at a time (M. E. Kounavis and F. L. Berry, "A systematic approach to building high
// performance software-based CRC generators", 2005): the remainder of a sum is the sum of the remainders. So
// sixteen bytes can be looked up independently, the one with k bytes behind it in a table for "this byte and
// k zero bytes", and the sixteen results added. No look-up waits for another.
//
// Many bytes at a time (V. Gopal and others, "Fast CRC computation for generic polynomials using PCLMULQDQ
// instruction", Intel, 2009): see crc32_folding.h.

#include "hash/crc32.h"

#include "hash/crc32_kernels.h"

#include <bit>
#include <cstddef>
#include <cstring>

namespace tarvelon {

namespace {

static_assert(std::endian::native == std::endian::little, "words are loaded as the first byte lowest");

constexpr std::uint32_t polynomial = 0xEDB88320;
constexpr std::size_t slices = 16;

using Slice = std::array<std::uint32_t, 256>;

/// Entry [k][b]: the state left by byte b and k zero bytes behind it.
constexpr std::array<Slice, slices> InitCrc32() {
    std::array<Slice, slices> tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t state = byte;
        for (int bit = 0; bit < 8; ++bit) {
            state = (state >> 1) ^ ((state & 1) != 0 ? polynomial : 0);
        }
        tables[0][byte] = state;
    }
    for (std::size_t slice = 1; slice < slices; ++slice) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t shorter = tables[slice - 1][byte];
            tables[slice][byte] = (shorter >> 8) ^ tables[0][shorter & 0xFF];
        }
    }
    return tables;
}

constexpr std::array<Slice, slices> tables = InitCrc32();

std::uint32_t loadWord(const unsigned char* bytes) {
    std::uint32_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// The state left by the word's four bytes and `behind` zero bytes.
template<std::size_t behind>
std::uint32_t lookUp(std::uint32_t word) {
    return tables[behind + 3][word & 0xFF] ^ tables[behind + 2][(word >> 8) & 0xFF] ^
           tables[behind + 1][(word >> 16) & 0xFF] ^ tables[behind][word >> 24];
}

} // namespace

std::uint32_t crc32Portable(std::uint32_t state, std::span<const unsigned char> bytes) {
    const unsigned char* next = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= slices; left -= slices, next += slices) {
        state = lookUp<12>(loadWord(next) ^ state) ^ lookUp<8>(loadWord(next + 4)) ^
                lookUp<4>(loadWord(next + 8)) ^ lookUp<0>(loadWord(next + 12));
    }
    for (; left > 0; --left, ++next) {
        state = (state >> 8) ^ tables[0][(state ^ *next) & 0xFF];
    }
    return state;
}

namespace {

// These builtins also ask whether the operating system keeps the wide registers.

bool hasFold128() {
    return __builtin_cpu_supports("sse2") && __builtin_cpu_supports("pclmul");
}

bool hasFold256() {
    return hasFold128() && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("vpclmulqdq");
}

bool hasFold512() {
    return hasFold256() && __builtin_cpu_supports("avx512f");
}

bool always() {
    return true;
}

const Crc32Kernel& fastestKernel() {
    for (const Crc32Kernel& kernel : crc32Kernels) {
        if (kernel.runsHere()) {
            return kernel;
        }
    }
    return crc32Kernels.back();
}

} // namespace

constexpr std::array<Crc32Kernel, 4> crc32Kernels = {{
    {"fold512", hasFold512, crc32Fold512},
    {"fold256", hasFold256, crc32Fold256},
    {"fold128", hasFold128, crc32Fold128},
    {"portable", always, crc32Portable},
}};

std::uint32_t updateCrc32(std::uint32_t state, std::span<const unsigned char> bytes) {
    static const auto update = fastestKernel().update;
    return update(state, bytes);
}

} // namespace tarvelon
