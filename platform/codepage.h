#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvelon {

/// A code page of the system: which bytes stand for which characters.
class CodePage {
public:
    enum class Kind {
        SingleByte, ///< Each byte is a character.
        DoubleByte, ///< Some bytes begin a character of two; the second one may be any from 0x40 on.
        Utf8,
    };

    virtual ~CodePage() = default;

    virtual Kind kind() = 0;

    /// The byte begins a character of two bytes. Only asked of a page that has such.
    virtual bool isLead(unsigned char byte) = 0;

    /// Empty when some of the bytes mean nothing in this page.
    virtual std::optional<std::u16string> toUtf16(std::string_view text) = 0;

    /// Empty when the page lacks one of the characters, and for half a surrogate pair.
    virtual std::optional<std::string> fromUtf16(std::u16string_view text) = 0;

    /// Capitals as the system compares the names of files: one unit for each, none of them by its neighbours.
    virtual std::u16string capitals(std::u16string units) = 0;
};

} // namespace tarvelon
