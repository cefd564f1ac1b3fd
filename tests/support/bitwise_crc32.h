#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

namespace tarvelon {

/// CRC-32 one bit after the other, straight from the definition, on from `state`.
inline std::uint32_t bitByBit(std::uint32_t state, std::span<const unsigned char> bytes) {
    for (const unsigned char byte : bytes) {
        state ^= byte;
        for (int bit = 0; bit < 8; ++bit) {
            state = (state >> 1) ^ ((state & 1) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return state;
}

/// The same as the baselines hold it: upper-case hexadecimal without leading zeros.
inline std::string crcText(const std::string& bytes) {
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    char text[9];
    std::snprintf(text, sizeof text, "%X",
                  static_cast<unsigned>(~bitByBit(0xFFFFFFFF, {data, bytes.size()})));
    return text;
}

} // namespace tarvelon
