#include "hash/crc16.h"

#include <array>
#include <cstddef>

namespace tarvelon {

namespace {

/// The states left by single bytes (D. V. Sarwate, 1988).
constexpr std::array<std::uint16_t, 256> InitCrc16() {
    std::array<std::uint16_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t state = static_cast<std::uint32_t>(byte) << 8;
        for (int bit = 0; bit < 8; ++bit) {
            state = (state << 1) ^ ((state & 0x8000) != 0 ? 0x1021 : 0);
        }
        table[byte] = static_cast<std::uint16_t>(state & 0xFFFF);
    }
    return table;
}

constexpr std::array<std::uint16_t, 256> table = InitCrc16();

} // namespace

std::uint32_t updateCrc16(std::uint32_t state, std::span<const unsigned char> bytes) {
    for (const unsigned char byte : bytes) {
        state = (table[((state >> 8) ^ byte) & 0xFF] ^ (state << 8)) & 0xFFFF;
    }
    return state;
}

} // namespace tarvelon
