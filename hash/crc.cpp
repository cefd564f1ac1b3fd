#include "hash/crc.h"

#include "hash/crc16.h"
#include "hash/file_reader.h"

namespace tarvelon {

std::optional<std::int32_t> clsCRC::AddBytes(std::span<const unsigned char> bytes) {
    if (bytes.empty()) {
        return std::nullopt;
    }
    if (isCrc32()) {
        crc32_ = updateCrc32(crc32_, bytes);
    } else {
        crc16_ = updateCrc16(crc16_, bytes);
    }
    return Value();
}

std::optional<std::int32_t> clsCRC::AddString(std::string_view text) {
    return AddBytes({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
}

void clsCRC::Algorithm(std::int16_t algorithm) {
    algorithm_ = algorithm == 0 ? 0 : -1;
    Clear();
}

std::optional<std::int32_t> clsCRC::CalculateBytes(std::span<const unsigned char> bytes) {
    return AddBytes(bytes);
}

std::optional<std::int32_t> clsCRC::CalculateFile2(const std::string& path, const std::string& /*label*/) {
    Clear();
    if (!reader_.read(path, [this](std::span<const unsigned char> bytes) { CalculateBytes(bytes); })) {
        return std::nullopt;
    }
    return Value();
}

std::optional<std::int32_t> clsCRC::CalculateString(std::string_view text) {
    return AddString(text);
}

std::int32_t clsCRC::Value() const {
    return static_cast<std::int32_t>(isCrc32() ? ~crc32_ : crc16_ & 0xFFFF);
}

void clsCRC::Value(std::int32_t state) {
    (isCrc32() ? crc32_ : crc16_) = static_cast<std::uint32_t>(state);
}

void clsCRC::Clear() {
    crc16_ = 0;
    crc32_ = crc32Start;
}

} // namespace tarvelon
