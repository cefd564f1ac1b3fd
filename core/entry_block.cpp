#include "core/entry_block.h"

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

constexpr std::string_view endMark = "*E\r\n";
constexpr std::string_view lastLine = "\r\nNULL*E\r\n";

// FNV-1a, 32 bits, over what letters are compared by (by Fowler, Noll and Vo).
constexpr std::uint32_t hashStart = 2166136261u;

std::uint32_t hashStep(std::uint32_t hash, std::uint32_t folded) {
    return (hash ^ folded) * 16777619u;
}

} // namespace

const std::string& EntryBlock::text() const {
    if (!gathered_.lines.empty()) {
        for (const std::string& line : gathered_.lines) {
            text_.append(line).append(lineEnd);
        }
        text_.append(lastLine.substr(lineEnd.size()));
        gathered_ = {};
    }
    return text_;
}

void EntryBlock::setText(std::string text) {
    text_ = std::move(text);
    gathered_ = {};
    indexed_ = false;
    slots_.clear();
    endMarks_.clear();
}

void EntryBlock::put(const TextRules& texts, const std::string& key, const std::string& value) {
    const bool oneLine = (key + value).find_first_of(lineEnd) == std::string::npos;
    if (!oneLine || !gather(texts) || !putIntoLines(texts, key, value)) {
        putIntoText(texts, key, value);
    }
}

bool EntryBlock::has(const TextRules& texts, const std::string& key) {
    if (!gather(texts)) {
        return texts.find(text_, std::string(lineEnd) + key + "=") != std::string::npos;
    }
    const std::string name = texts.upper(key) + "=";
    const auto line = gathered_.inCapitals.lower_bound(name);
    return line != gathered_.inCapitals.end() && line->first.starts_with(name);
}

/// Cuts the text into lines. False when it does not end with its only "NULL*E" line.
bool EntryBlock::gather(const TextRules& texts) {
    if (!gathered_.lines.empty()) {
        return true;
    }
    if (!text_.ends_with(lastLine) || texts.find(text_, lastLine) + lastLine.size() != text_.size()) {
        return false;
    }
    const std::string text = std::exchange(text_, {});
    setText({});
    const std::size_t stop = text.size() - lastLine.size() + lineEnd.size();
    for (std::size_t start = 0; start < stop;) {
        const std::size_t end = text.find(lineEnd, start);
        addLine(texts, text.substr(start, end - start));
        start = end + lineEnd.size();
    }
    return true;
}

void EntryBlock::addLine(const TextRules& texts, std::string line) {
    if (!gathered_.lines.empty()) {
        gathered_.inCapitals.emplace(texts.upper(line), gathered_.lines.size());
    }
    gathered_.lines.push_back(std::move(line));
}

/// Does what `putIntoText` would do. False when the value to replace does not end with its line.
bool EntryBlock::putIntoLines(const TextRules& texts, const std::string& key, const std::string& value) {
    auto& [lines, inCapitals] = gathered_;
    const std::string name = texts.upper(key);
    bool known = lastLine.substr(lineEnd.size()).starts_with(key);
    std::vector<decltype(inCapitals.begin())> named;
    for (auto it = inCapitals.lower_bound(name); it != inCapitals.end() && it->first.starts_with(name);
         ++it) {
        known = known || lines[it->second].starts_with(key);
        if (it->first[name.size()] == '=') {
            named.push_back(it);
        }
    }
    std::string entry = key + "=" + value;
    if (!known) {
        addLine(texts, std::move(entry));
        return true;
    }
    if (named.empty()) {
        return true;
    }
    std::sort(named.begin(), named.end(), [](auto a, auto b) { return a->second < b->second; });
    const std::string old = named.front()->first;
    if (!old.ends_with("*E")) {
        return false;
    }
    std::size_t next = 0;
    for (const auto it : named) {
        const std::size_t number = it->second;
        if (it->first == old && number >= next) {
            auto node = inCapitals.extract(it);
            node.key() = texts.upper(entry);
            inCapitals.insert(std::move(node));
            lines[number] = entry;
            next = number + 2; // Two hits in a row would share a line end: the second one stays.
        }
    }
    return true;
}

void EntryBlock::putIntoText(const TextRules& texts, const std::string& key, const std::string& value) {
    const std::string line = std::string(lineEnd) + key;
    const bool known = text().find(line) != std::string::npos;
    std::string old(lastLine);
    if (known) {
        old = line + "=" + getBetween(texts, text_, 1, line + "=", endMark) + std::string(endMark);
    }
    const std::string_view behind = known ? lineEnd : lastLine;
    setText(texts.replaceAll(text_, old, line + "=" + value + std::string(behind)));
}

std::string EntryBlock::find(const TextRules& texts, std::string_view key) const {
    text();
    if (key.find_first_of(lineEnd) != std::string_view::npos) {
        // Such a key may reach over a line end, where the index does not look.
        return getBetween(texts, text_, 1, std::string(lineEnd).append(key).append("="), endMark);
    }
    if (!indexed_) {
        buildIndex(texts);
    }
    std::uint32_t hash = hashStart;
    for (std::size_t i = 0; i < key.size();) {
        const TextRules::Letter letter = texts.letterAt(key, i);
        hash = hashStep(hash, letter.folded);
        i += letter.length;
    }
    const Slot& slot = slotFor(texts, hash, key);
    if (slot.length == unused) {
        return {};
    }
    const std::size_t begin = std::size_t{slot.start} + slot.length + 1;
    const auto end = std::lower_bound(endMarks_.begin(), endMarks_.end(), begin);
    return end == endMarks_.end() ? std::string() : text_.substr(begin, *end - begin);
}

void EntryBlock::buildIndex(const TextRules& texts) const {
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
        if (line >= 2 && texts.equal(std::string_view(text_).substr(line - 2, endMark.size()), endMark)) {
            endMarks_.push_back(static_cast<std::uint32_t>(line - 2));
        }
        line += lineEnd.size();
        const std::size_t next = text_.find(lineEnd, line);
        const std::size_t stop = next == std::string::npos ? text_.size() : next;
        std::uint32_t hash = hashStart;
        for (std::size_t i = line; i < stop;) {
            if (text_[i] == '=') {
                const std::string_view name = std::string_view(text_).substr(line, i - line);
                Slot& slot = slotFor(texts, hash, name);
                if (slot.length == unused) { // The first line of a name wins.
                    slot = {static_cast<std::uint32_t>(line), static_cast<std::uint32_t>(i - line)};
                }
            }
            const TextRules::Letter letter = texts.letterAt(text_, i);
            hash = hashStep(hash, letter.folded);
            i += letter.length;
        }
        line = next;
    }
    indexed_ = true;
}

/// The slot that holds `key`, or the free one where it belongs.
EntryBlock::Slot& EntryBlock::slotFor(const TextRules& texts, std::uint32_t hash,
                                      std::string_view key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t place = (hash ^ (hash >> 15)) & mask;
    for (;; place = (place + 1) & mask) {
        Slot& slot = slots_[place];
        if (slot.length == unused) {
            return slot;
        }
        if (texts.equal(std::string_view(text_).substr(slot.start, slot.length), key)) {
            return slot;
        }
    }
}

} // namespace tarvelon
