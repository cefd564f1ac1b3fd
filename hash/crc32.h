#pragma once

#include <cstdint>
#include <span>

namespace tarvelon {

/// The running value of a CRC-32 of which no byte has been seen. The checksum is the state's complement.
inline constexpr std::uint32_t crc32Start = 0xFFFFFFFF;

/// Carries the state of a CRC-32 (IEEE 802.3) over more bytes, by the fastest way that this processor has.
std::uint32_t updateCrc32(std::uint32_t state, std::span<const unsigned char> bytes);

} // namespace tarvelon
