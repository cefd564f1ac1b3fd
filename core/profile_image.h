#pragma once

#include "core/text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvelon {

/// The text of a profile file (`[section]` heads and `key=value` lines), with the rules of the system's two
/// profile calls: keys and sections without regard to case, blanks around them ignored on reading, a
/// surrounding pair of quotes dropped, all other lines left as they stand. Every line with a "=" is an entry,
/// also one that looks like a comment or like a section head.
class ProfileImage {
public:
    explicit ProfileImage(const TextRules& texts)
        : texts_(&texts) {}

    const std::string& text() const { return text_; }
    void setText(std::string text);

    /// Empty without such a key.
    std::optional<std::string> read(std::string_view section, std::string_view key);

    /// What a write did: `length` characters stand now at `position` in place of those that were taken.
    struct Change {
        std::size_t position;
        std::size_t length;
        std::string taken;
    };

    /// Replaces the key's line where it stands, or adds one behind the last line of its section that is not
    /// blank, or adds section and key at the end.
    Change write(std::string_view section, std::string_view key, std::string_view value);

private:
    Change replaceValue(std::size_t line, std::string_view value);
    Change insertEntry(const std::string& prefix, std::size_t line, const std::string& entry);
    Change replace(std::size_t position, std::size_t length, std::string_view with);

    void parse();
    void noteKey(const std::string& prefix, std::string_view text, std::size_t line);
    std::string lookupName(std::string_view section, std::string_view key) const;
    void goTo(std::size_t line);
    std::string_view lineText() const;

    const TextRules* texts_;
    std::string text_;
    bool parsed_ = false;
    std::vector<std::size_t> lengths_;                  ///< Of the lines, line ends included.
    std::unordered_map<std::string, std::size_t> keys_; ///< Numbers of their lines, from 0.
    /// Numbers of the lines behind their last one that is not blank.
    std::unordered_map<std::string, std::size_t> sections_;
    /// The line looked at last, and where it begins: thousands of writes go from line to line.
    std::size_t line_ = 0;
    std::size_t start_ = 0;
};

} // namespace tarvelon
