#include "core/entry_block.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr std::string_view endMark = "*E\r\n";

// FNV-1a, 32 bits, over upper-cased characters (by Fowler, Noll and Vo).
constexpr std::uint32_t hashStart = 2166136261u;

std::uint32_t hashStep(std::uint32_t hash, char upperCased) {
    return (hash ^ static_cast<unsigned char>(upperCased)) * 16777619u;
}

} // namespace

void EntryBlock::setText(std::string text) {
    text_ = std::move(text);
    indexed_ = false;
    slots_.clear();
    endMarks_.clear();
}

std::string EntryBlock::find(const CaseRules& cases, std::string_view key) const {
    if (key.find_first_of(lineEnd) != std::string_view::npos) {
        // Such a key may reach over a line end, where the index does not look.
        return getBetween(cases, text_, 1, std::string(lineEnd).append(key).append("="), endMark);
    }
    if (!indexed_) {
        buildIndex(cases);
    }
    std::uint32_t hash = hashStart;
    for (const char character : key) {
        hash = hashStep(hash, cases.upper(character));
    }
    const Slot& slot = slotFor(cases, hash, key);
    if (slot.length == unused) {
        return {};
    }
    const std::size_t begin = std::size_t{slot.start} + slot.length + 1;
    const auto end = std::lower_bound(endMarks_.begin(), endMarks_.end(), begin);
    return end == endMarks_.end() ? std::string() : text_.substr(begin, *end - begin);
}

void EntryBlock::buildIndex(const CaseRules& cases) const {
    // A name may itself hold "=", so each "=" of a line ends one possible name.
    const auto names = static_cast<std::size_t>(std::count(text_.begin(), text_.end(), '='));
    std::size_t size = 16;
    while (size < names * 2) {
        size *= 2;
    }
    slots_.assign(size, Slot{});
    endMarks_.clear();

    std::size_t line = text_.find(lineEnd);
    while (line != std::string::npos) {
        if (line >= 2 && cases.equal(std::string_view(text_).substr(line - 2, endMark.size()), endMark)) {
            endMarks_.push_back(static_cast<std::uint32_t>(line - 2));
        }
        line += lineEnd.size();
        const std::size_t next = text_.find(lineEnd, line);
        const std::size_t stop = next == std::string::npos ? text_.size() : next;
        std::uint32_t hash = hashStart;
        for (std::size_t i = line; i < stop; ++i) {
            if (text_[i] == '=') {
                const std::string_view name = std::string_view(text_).substr(line, i - line);
                Slot& slot = slotFor(cases, hash, name);
                if (slot.length == unused) { // The first line of a name wins.
                    slot = {static_cast<std::uint32_t>(line), static_cast<std::uint32_t>(i - line)};
                }
            }
            hash = hashStep(hash, cases.upper(text_[i]));
        }
        line = next;
    }
    indexed_ = true;
}

/// The slot that holds `key`, or the free one where it belongs.
EntryBlock::Slot& EntryBlock::slotFor(const CaseRules& cases, std::uint32_t hash,
                                      std::string_view key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t place = (hash ^ (hash >> 15)) & mask;
    for (;; place = (place + 1) & mask) {
        Slot& slot = slots_[place];
        if (slot.length == unused) {
            return slot;
        }
        if (slot.length == key.size() &&
            cases.equal(std::string_view(text_).substr(slot.start, slot.length), key)) {
            return slot;
        }
    }
}

} // namespace tarvelon
