#pragma once

#include "core/text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

/// The text of one baseline section, from its "[" to the line end in front of the next section, with entry
/// lines of the form `name=value*E`. Looking a name up takes constant time and gives to the letter what
/// `getBetween(text, 1, CR LF + name + "=", "*E" + CR LF)` would give. The index for it is made at the first
/// look-up behind a change.
class EntryBlock {
public:
    const std::string& text() const { return text_; }
    void setText(std::string text);

    /// The value of `key`, untrimmed; empty when there is none.
    std::string find(const CaseRules& cases, std::string_view key) const;

private:
    /// A candidate line: it starts at `start`, and `length` characters later stands a "=".
    struct Slot {
        std::uint32_t start = 0;
        std::uint32_t length = unused;
    };
    static constexpr std::uint32_t unused = 0xffffffff;

    void buildIndex(const CaseRules& cases) const;
    Slot& slotFor(const CaseRules& cases, std::uint32_t hash, std::string_view key) const;

    std::string text_;
    mutable bool indexed_ = false;
    mutable std::vector<Slot> slots_;             ///< Open addressing; a power of two.
    mutable std::vector<std::uint32_t> endMarks_; ///< Where each "*E" + line end stands, ascending.
};

} // namespace tarvelon
