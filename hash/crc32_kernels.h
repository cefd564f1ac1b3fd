#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace tarvelon {

/// Each carries the state of a CRC-32 over the bytes: any count, any alignment, the same result.
std::uint32_t crc32Portable(std::uint32_t state, std::span<const unsigned char> bytes);
std::uint32_t crc32Fold128(std::uint32_t state, std::span<const unsigned char> bytes);
std::uint32_t crc32Fold256(std::uint32_t state, std::span<const unsigned char> bytes);
std::uint32_t crc32Fold512(std::uint32_t state, std::span<const unsigned char> bytes);

/// One way of computing CRC-32, and whether the processor and the operating system allow it.
struct Crc32Kernel {
    const char* name;
    bool (*runsHere)();
    std::uint32_t (*update)(std::uint32_t state, std::span<const unsigned char> bytes);
};

/// Fastest first. The last one runs everywhere.
extern const std::array<Crc32Kernel, 4> crc32Kernels;

} // namespace tarvelon
