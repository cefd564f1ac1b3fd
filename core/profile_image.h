#pragma once

#include "core/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvelon {

/// The text of a profile file (`[section]` heads and `key=value` lines), with the rules of the system's two
/// profile calls: keys and sections without regard to case, blanks around them ignored on reading, a
/// surrounding pair of quotes dropped, comment lines and all other lines left as they stand.
class ProfileImage {
public:
    explicit ProfileImage(const CaseRules& cases)
        : cases_(&cases) {}

    const std::string& text() const { return text_; }
    void setText(std::string text);

    /// Empty without such a key.
    std::optional<std::string> read(std::string_view section, std::string_view key);

    /// Replaces the key's line where it stands, or adds one behind the last line of its section that is not
    /// blank, or adds section and key at the end. Gives the position of the first byte that may have changed;
    /// everything behind it may have moved.
    std::size_t write(std::string_view section, std::string_view key, std::string_view value);

private:
    struct Section {
        std::size_t lastUsedLine; ///< Its last line that is not blank, the head included.
    };

    void parse();
    std::string lookupName(std::string_view section, std::string_view key) const;
    std::size_t lineStart(std::size_t line) const;
    void resizeLine(std::size_t line, std::size_t oldLength, std::size_t newLength);
    std::size_t insertLines(std::size_t position, std::string_view lines);

    const CaseRules* cases_;
    std::string text_;
    bool parsed_ = false;
    std::vector<std::uint32_t> lengths_; ///< Of each line, its line end included.
    std::vector<std::uint32_t> sums_;    ///< Partial sums of the lengths (Fenwick tree).
    std::unordered_map<std::string, std::size_t> lines_;
    std::unordered_map<std::string, Section> sections_;
};

} // namespace tarvelon
