#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelon::utf8 {

struct Character {
    std::uint32_t code;
    std::size_t length; ///< In bytes.
};

/// The character that begins at `place`. Empty when its bytes are no UTF-8 (RFC 3629): too long a form, half
/// a surrogate pair, a torn or stray byte.
std::optional<Character> characterAt(std::string_view text, std::size_t place);

void append(std::string& text, std::uint32_t code);

/// Empty when the text is no UTF-8.
std::optional<std::u16string> toUtf16(std::string_view text);

/// Empty when it holds half a surrogate pair.
std::optional<std::string> fromUtf16(std::u16string_view text);

} // namespace tarvelon::utf8
