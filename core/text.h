#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

class CodePage;

/// Comparison without regard to case, by one table for the system's 8-bit code page.
class CaseRules {
public:
    /// Only the letters A to Z have two cases.
    CaseRules();
    explicit CaseRules(CodePage& codePage);

    char upper(char character) const { return upper_[static_cast<unsigned char>(character)]; }
    std::string upper(std::string_view text) const;
    std::string lower(std::string_view text) const;

    bool equal(std::string_view a, std::string_view b) const;

    /// Position of `needle` from position `from` on, without regard to case; `npos` when it is not there.
    std::size_t find(std::string_view text, std::string_view needle, std::size_t from = 0) const;

    /// Every occurrence replaced, found without regard to case, from left to right and without overlaps.
    std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) const;

private:
    void noteCaseless();
    std::size_t findShort(std::string_view text, std::string_view needle, std::size_t from) const;
    std::size_t findLong(std::string_view text, std::string_view needle, std::size_t from) const;

    std::array<char, 256> upper_;
    std::array<char, 256> lower_;
    /// The character is alone in its fold, so that a plain byte search finds it.
    std::array<bool, 256> caseless_;
};

inline constexpr std::string_view lineEnd = "\r\n";

/// Every occurrence replaced, upper and lower case being different, from left to right and without overlaps.
std::string replaceExact(std::string text, std::string_view what, std::string_view with);

/// Blanks only, at both ends; tabs and zeros stay.
std::string trim(std::string_view text);

/// The text between the first `left` from position `start` (from 1) and the next `right` behind it, both
/// found without regard to case. Empty when either is missing.
std::string getBetween(const CaseRules& cases, std::string_view text, std::size_t start,
                       std::string_view left, std::string_view right);

/// The parts between separators; an empty text has no parts.
std::vector<std::string> split(std::string_view text, char separator);

/// The last `count` characters, or all of a shorter text.
std::string_view lastCharacters(std::string_view text, std::size_t count);

/// A whole number in decimal, blanks around it allowed. Empty for anything else and outside the 32-bit range.
std::optional<std::int32_t> toNumber(std::string_view text);

/// The path with one backslash at its end.
std::string withBackslash(std::string path);

/// The path with "bak" for its last three characters.
std::string backupOf(const std::string& path);

/// What stands behind the last backslash.
std::string bareName(const std::string& path);

/// Each character's code raised by 21 (mode "ABC") or lowered by 21 (mode "CBA"), but only when `apply` is
/// given. Baselines hold checksums as they are, so their comparison leaves it out.
std::string shiftText(std::string_view mode, std::string text, std::optional<bool> apply = std::nullopt);

} // namespace tarvelon
