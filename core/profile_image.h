#pragma once

#include "core/gap_text.h"
#include "core/prefix_sums.h"
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
    explicit ProfileImage(const CaseRules& cases)
        : cases_(&cases) {}

    std::string text() const { return text_.whole(); }
    void setText(std::string text);

    std::size_t size() const { return text_.size(); }
    /// The text from `position` on. Good until the next call.
    std::string_view from(std::size_t position) { return text_.piece(position, text_.size()); }

    /// Empty without such a key.
    std::optional<std::string> read(std::string_view section, std::string_view key);

    /// Replaces the key's line where it stands, or adds one behind the last line of its section that is not
    /// blank, or adds section and key at the end. Gives the position of the first byte that may have changed;
    /// everything behind it may have moved.
    std::size_t write(std::string_view section, std::string_view key, std::string_view value);
    /// Takes the last `write` back, byte for byte.
    void undo();

private:
    /// A section head and what stands behind it up to the next one; what stands in front of the first head is
    /// a part as well. Keys are added behind `lines`, so no line's number ever changes.
    struct Part {
        PrefixSums lines; ///< Lengths, line ends included, up to the last line that is not blank.
        std::size_t blankEnd = 0;
    };
    struct Place {
        std::size_t part;
        std::size_t line;
    };

    void parse();
    void beginPart();
    void appendLine(std::size_t length);
    void noteKey(const std::string& prefix, std::string_view line, Place place);
    void replaceValue(Place place, std::size_t start, std::string_view value);
    void insertEntry(std::size_t part, const std::string& prefix, std::size_t position,
                     const std::string& entry);
    std::string lookupName(std::string_view section, std::string_view key) const;
    std::size_t lineStart(Place place) const;
    std::size_t lineLength(Place place) const;

    const CaseRules* cases_;
    GapText text_;
    bool parsed_ = false;
    std::vector<Part> parts_;
    PrefixSums partLengths_;
    std::unordered_map<std::string, Place> keys_;
    std::unordered_map<std::string, std::size_t> sections_; ///< Numbers of the parts that count.
};

} // namespace tarvelon
