#include "core/utf8.h"

namespace tarvelon::utf8 {

namespace {

constexpr std::uint32_t firstBeyondUnits = 0x10000;
constexpr std::uint32_t lastCode = 0x10ffff;

bool isSurrogate(std::uint32_t code) {
    return (code & 0xfffff800) == 0xd800;
}

/// Bytes of a character by its first one; 0 for one that begins none.
std::size_t lengthBy(unsigned char first) {
    return first < 0x80 ? 1 : first < 0xc2 ? 0 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : first < 0xf5 ? 4 : 0;
}

} // namespace

std::optional<Character> characterAt(std::string_view text, std::size_t place) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[place + at]); };
    const std::size_t length = lengthBy(byte(0));
    if (length < 2 || length > text.size() - place) {
        return length == 1 ? std::optional(Character{byte(0), 1}) : std::nullopt;
    }
    std::uint32_t code = byte(0) & (0x7fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80) {
            return std::nullopt;
        }
        code = code << 6 | (byte(i) & 0x3f);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, firstBeyondUnits};
    const bool valid = code >= smallest[length] && code <= lastCode && !isSurrogate(code);
    return valid ? std::optional(Character{code, length}) : std::nullopt;
}

void append(std::string& text, std::uint32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < firstBeyondUnits ? 2 : 3; // Bytes behind the first one.
    text += static_cast<char>((0xff00u >> (more + 1) & 0xff) | code >> (6 * more));
    for (int i = more; i-- > 0;) {
        text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3f));
    }
}

std::optional<std::u16string> toUtf16(std::string_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (std::size_t place = 0; place < text.size();) {
        const auto character = characterAt(text, place);
        if (!character) {
            return std::nullopt;
        }
        place += character->length;
        std::uint32_t code = character->code;
        if (code >= firstBeyondUnits) {
            code -= firstBeyondUnits;
            units += static_cast<char16_t>(0xd800 | code >> 10);
            code = 0xdc00 | (code & 0x3ff);
        }
        units += static_cast<char16_t>(code);
    }
    return units;
}

std::optional<std::string> fromUtf16(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t code = text[i];
        if (isSurrogate(code)) {
            const bool isPair = code < 0xdc00 && i + 1 < text.size() && (text[i + 1] & 0xfc00) == 0xdc00;
            if (!isPair) {
                return std::nullopt;
            }
            code = firstBeyondUnits + ((code & 0x3ff) << 10 | (text[++i] & 0x3ffu));
        }
        append(bytes, code);
    }
    return bytes;
}

} // namespace tarvelon::utf8
