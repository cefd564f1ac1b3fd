#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

class CodePage;

/// How texts in the process's code page are compared and cut: at whole characters, whatever their bytes.
class TextRules {
public:
    /// Only the letters A to Z have two cases, and each byte is a character.
    TextRules();
    explicit TextRules(CodePage& codePage);

    /// One character: how many bytes it has, and what it is compared by without regard to case. Letters of
    /// any script count as the system's file names do, and none outside of A to Z equals one of these.
    struct Letter {
        std::uint32_t folded;
        std::size_t length;
    };
    Letter letterAt(std::string_view text, std::size_t place) const {
        const auto byte = static_cast<unsigned char>(text[place]);
        return isWhole(byte) ? Letter{upper_[byte], 1} : longLetterAt(text, place);
    }

    std::string upper(std::string_view text) const;

    bool equal(std::string_view a, std::string_view b) const;

    /// Where a text was found; its end, too, as letters of two cases may differ in bytes.
    struct Hit {
        std::size_t begin;
        std::size_t end;
    };
    /// `needle` from position `from` on, without regard to case. Empty when it is not there.
    std::optional<Hit> hit(std::string_view text, std::string_view needle, std::size_t from = 0) const;

    /// Where the hit begins; `npos` when there is none.
    std::size_t find(std::string_view text, std::string_view needle, std::size_t from = 0) const;

    /// Every occurrence replaced, found without regard to case, from left to right and without overlaps.
    std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) const;

    /// The first `character` (of ASCII) from position `from` on, or the last one; `npos` when there is none.
    std::size_t first(std::string_view text, char character, std::size_t from = 0) const;
    std::size_t last(std::string_view text, char character) const;

    /// The path with one backslash at its end.
    std::string withBackslash(std::string path) const;

    /// What stands behind the last backslash.
    std::string bareName(const std::string& path) const;

private:
    /// The byte is a character by itself.
    bool isWhole(unsigned char byte) const { return byte < 0x80 || !manyBytes_; }
    bool isBegin(std::string_view text, std::size_t place) const;
    Letter longLetterAt(std::string_view text, std::size_t place) const;
    std::uint32_t foldUnit(char16_t unit) const;
    std::uint32_t foldDouble(std::string_view character) const;
    bool isByteSearch(std::string_view needle) const;
    bool equalFrom(std::string_view a, std::string_view b, std::size_t place) const;
    std::size_t endOfMatch(std::string_view text, std::string_view needle, std::size_t place) const;
    void noteCaseless();
    std::size_t findBytes(std::string_view text, std::string_view needle, std::size_t from) const;
    std::size_t findShort(std::string_view text, std::string_view needle, std::size_t from) const;
    std::size_t findLong(std::string_view text, std::string_view needle, std::size_t from) const;
    bool equalBytes(std::string_view a, std::string_view b) const;
    unsigned char upperByte(char character) const { return upper_[static_cast<unsigned char>(character)]; }

    std::array<unsigned char, 256> upper_; ///< Of bytes that are characters by themselves.
    /// The character is alone in its fold, so that a plain byte search finds it.
    std::array<bool, 256> caseless_;
    bool manyBytes_ = false; ///< The page has characters of several bytes.
    CodePage* page_ = nullptr;
    mutable std::u16string units_;               ///< Of UTF-8: capitals of all units, once one was needed.
    mutable std::vector<std::uint16_t> doubles_; ///< Of double bytes: capitals as far as known, else 0.
};

inline constexpr std::string_view lineEnd = "\r\n";

/// Every occurrence replaced, upper and lower case being different, from left to right and without overlaps.
/// `what` begins with no second byte of any character.
std::string replaceExact(std::string text, std::string_view what, std::string_view with);

/// Blanks only, at both ends; tabs and zeros stay.
std::string trim(std::string_view text);

/// The text between the first `left` from position `start` (from 1) and the next `right` behind it, both
/// found without regard to case. Empty when either is missing.
std::string getBetween(const TextRules& texts, std::string_view text, std::size_t start,
                       std::string_view left, std::string_view right);

/// The parts between separators, which are no second byte of any character, such as commas; an empty text has
/// no parts.
std::vector<std::string> split(std::string_view text, char separator);

/// The last `count` characters, or all of a shorter text.
std::string_view lastCharacters(std::string_view text, std::size_t count);

/// A whole number in decimal, blanks around it allowed. Empty for anything else and outside the 32-bit range.
std::optional<std::int32_t> toNumber(std::string_view text);

/// The path with "bak" for its last three characters.
std::string backupOf(const std::string& path);

/// A to Z as small letters, everything else as it is.
std::string lowerAscii(std::string text);

bool isAscii(std::string_view text);

/// Each character's code raised by 21 (mode "ABC") or lowered by 21 (mode "CBA"), but only when `apply` is
/// given. Baselines hold checksums as they are, so their comparison leaves it out.
std::string shiftText(std::string_view mode, std::string text, std::optional<bool> apply = std::nullopt);

} // namespace tarvelon
