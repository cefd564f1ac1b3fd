#pragma once

#include <cstdint>
#include <span>

namespace tarvelon {

/// Carries the state of a CRC-16 (CCITT, highest bit first, polynomial 0x1021) over more bytes. The state
/// starts at 0 and is the checksum itself; its bits above the sixteenth are lost with the first byte.
std::uint32_t updateCrc16(std::uint32_t state, std::span<const unsigned char> bytes);

} // namespace tarvelon
