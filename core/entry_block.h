#pragma once

#include "core/text.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

/// The text of one baseline section, from its "[" to the line end in front of the next section, with entry
/// lines of the form `name=value*E`. Looking a name up takes constant time and gives to the letter what
/// `getBetween(text, 1, CR LF + name + "=", "*E" + CR LF)` would give. The index for it is made at the first
/// look-up behind a change. Entries that are put in one after another are gathered as lines, and the text is
/// built when somebody asks for it.
class EntryBlock {
public:
    const std::string& text() const;
    void setText(std::string text);

    /// Stores an entry; `value` has its "*E" on. A name is taken as known when a line begins with it, in this
    /// case of letters and whatever follows, so that the beginning of a longer name is as well. A new entry
    /// comes in front of each "NULL*E" line. For a known name the value that `find` gives is replaced, on
    /// every line that has name and value in any case; without such a value nothing changes.
    void put(const TextRules& texts, const std::string& key, const std::string& value);

    /// Some line has this name, in any case of letters.
    bool has(const TextRules& texts, const std::string& key);

    /// The value of `key`, untrimmed; empty when there is none.
    std::string find(const TextRules& texts, std::string_view key) const;

private:
    /// A candidate line: it starts at `start`, and `length` characters later stands a "=".
    struct Slot {
        std::uint32_t start = 0;
        std::uint32_t length = unused;
    };
    static constexpr std::uint32_t unused = 0xffffffff;

    /// The text while entries are gathered, without the "NULL*E" line that ends it; else no lines.
    struct Gathered {
        std::vector<std::string> lines;
        std::multimap<std::string, std::size_t> inCapitals; ///< The same, but for the section's head.
    };

    bool gather(const TextRules& texts);
    void addLine(const TextRules& texts, std::string line);
    bool putIntoLines(const TextRules& texts, const std::string& key, const std::string& value);
    void putIntoText(const TextRules& texts, const std::string& key, const std::string& value);
    void buildIndex(const TextRules& texts) const;
    Slot& slotFor(const TextRules& texts, std::uint32_t hash, std::string_view key) const;

    mutable std::string text_;
    mutable Gathered gathered_;
    mutable bool indexed_ = false;
    mutable std::vector<Slot> slots_;             ///< Open addressing; a power of two.
    mutable std::vector<std::uint32_t> endMarks_; ///< Where each "*E" + line end stands, ascending.
};

} // namespace tarvelon
