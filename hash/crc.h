#pragma once

#include "hash/crc32.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarvelon {

class FileReader;

/// CRC-32 (IEEE 802.3) and CRC-16 (CCITT, started at 0) over bytes, texts and files. A new object is a
/// cleared CRC-32.
class clsCRC {
public:
    explicit clsCRC(FileReader& reader)
        : reader_(reader) {}

    /// Carries the state on and gives the value reached. Without bytes: nothing, and the state stays.
    std::optional<std::int32_t> AddBytes(std::span<const unsigned char> bytes);
    std::optional<std::int32_t> AddString(std::string_view text);

    /// -1: CRC-32; 0: CRC-16. Setting it, to anything but 0 for CRC-32, clears both.
    void Algorithm(std::int16_t algorithm);
    std::int16_t Algorithm() const { return algorithm_; }

    /// The same as adding: nothing is cleared first, so that a file can come in pieces.
    std::optional<std::int32_t> CalculateBytes(std::span<const unsigned char> bytes);

    /// A whole file's value; empty for an empty or unreadable file. `label` has no effect.
    std::optional<std::int32_t> CalculateFile2(const std::string& path, const std::string& label);

    std::optional<std::int32_t> CalculateString(std::string_view text);

    /// The value of the bytes so far. Negative for a CRC-32 with its top bit set.
    std::int32_t Value() const;

    /// Sets the running state itself: for CRC-32 the complement of the value.
    void Value(std::int32_t state);

    void Clear();

private:
    bool isCrc32() const { return algorithm_ != 0; }

    FileReader& reader_;
    std::int16_t algorithm_ = -1;
    std::uint32_t crc16_ = 0;
    std::uint32_t crc32_ = crc32Start;
};

} // namespace tarvelon
