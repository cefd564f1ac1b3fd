#include "core/profile_image.h"

namespace tarvelon {

namespace {

constexpr std::string_view blanks = " \t";

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view withoutLineEnd(std::string_view line) {
    if (!line.empty() && line.back() == '\n') {
        line.remove_suffix(1);
    }
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// A `key=value` line, as opposed to all others. The key may be any name, so that one like a comment or a
/// section head is found again.
bool isEntry(std::string_view line) {
    return line.find('=') != std::string_view::npos;
}

/// The name in a section head, or nothing for any other line.
std::optional<std::string_view> sectionHead(std::string_view trimmedLine) {
    const std::size_t close = trimmedLine.find(']');
    if (!trimmedLine.starts_with('[') || close == std::string_view::npos || isEntry(trimmedLine)) {
        return std::nullopt;
    }
    return trimBlanks(trimmedLine.substr(1, close - 1));
}

/// What is written under an odd key, or as an odd value, may come out as several lines.
bool isOneLine(std::string_view line) {
    return line.find('\n') >= line.size() - 1;
}

/// What a line is to be ended with before another follows; a file that was torn within a line end has half of
/// it.
std::string_view missingLineEnd(std::string_view text) {
    return text.empty() || text.ends_with('\n') ? "" : text.ends_with('\r') ? "\n" : lineEnd;
}

} // namespace

void ProfileImage::setText(std::string text) {
    text_ = std::move(text);
    parsed_ = false;
}

std::optional<std::string> ProfileImage::read(std::string_view section, std::string_view key) {
    parse();
    const auto found = keys_.find(lookupName(section, key));
    if (found == keys_.end()) {
        return std::nullopt;
    }
    goTo(found->second);
    const std::string_view line = withoutLineEnd(lineText());
    return std::string(withoutQuotes(trimBlanks(line.substr(line.find('=') + 1))));
}

ProfileImage::Change ProfileImage::write(std::string_view section, std::string_view key,
                                         std::string_view value) {
    parse();
    const auto found = keys_.find(lookupName(section, key));
    if (found != keys_.end()) {
        return replaceValue(found->second, value);
    }

    const std::string entry = std::string(key).append("=").append(value).append(lineEnd);
    const std::string prefix = lookupName(section, {});
    const auto home = sections_.find(prefix);
    if (home != sections_.end()) {
        return insertEntry(prefix, home->second, entry);
    }
    parsed_ = false;
    return replace(text_.size(), 0,
                   std::string(missingLineEnd(text_))
                       .append("[")
                       .append(trimBlanks(section))
                       .append("]")
                       .append(lineEnd)
                       .append(entry));
}

ProfileImage::Change ProfileImage::replaceValue(std::size_t line, std::string_view value) {
    goTo(line);
    const std::string_view old = lineText();
    const std::string_view body = withoutLineEnd(old);
    const std::string_view ending = old.ends_with('\n') ? old.substr(body.size()) : lineEnd;
    const std::string text =
        std::string(body.substr(0, body.find('='))).append("=").append(value).append(ending);
    parsed_ = isOneLine(text);
    lengths_[line] = text.size();
    return replace(start_, old.size(), text);
}

/// Puts a new line in front of another, and a line end first where the line before it lacks one.
ProfileImage::Change ProfileImage::insertEntry(const std::string& prefix, std::size_t line,
                                               const std::string& entry) {
    goTo(line);
    const std::string_view missing = missingLineEnd(std::string_view(text_).substr(0, start_));
    parsed_ = missing.empty() && isOneLine(entry);
    if (parsed_) {
        for (auto* numbers : {&keys_, &sections_}) {
            for (auto& [name, number] : *numbers) {
                number += number >= line ? 1 : 0;
            }
        }
        lengths_.insert(lengths_.begin() + static_cast<std::ptrdiff_t>(line), entry.size());
        noteKey(prefix, entry, line);
    }
    return replace(start_, 0, std::string(missing).append(entry));
}

ProfileImage::Change ProfileImage::replace(std::size_t position, std::size_t length, std::string_view with) {
    Change change{position, with.size(), text_.substr(position, length)};
    text_.replace(position, length, with);
    return change;
}

/// Notes the lines, and the first of each key. Of two sections with one name the first counts.
void ProfileImage::parse() {
    if (parsed_) {
        return;
    }
    lengths_.clear();
    keys_.clear();
    sections_.clear();
    line_ = 0;
    start_ = 0;
    std::string prefix;
    std::size_t* sectionEnd = nullptr;
    for (std::size_t start = 0; start < text_.size(); start += lengths_.back()) {
        const std::size_t feed = text_.find('\n', start);
        const std::size_t end = feed == std::string::npos ? text_.size() : feed + 1;
        lengths_.push_back(end - start);
        const std::string_view line =
            trimBlanks(withoutLineEnd(std::string_view(text_).substr(start, end - start)));
        if (const auto head = sectionHead(line)) {
            prefix = lookupName(*head, {});
            const auto [section, isNew] = sections_.try_emplace(prefix);
            sectionEnd = isNew ? &section->second : nullptr;
        }
        if (sectionEnd && !line.empty()) {
            *sectionEnd = lengths_.size();
            if (isEntry(line)) {
                noteKey(prefix, line, lengths_.size() - 1);
            }
        }
    }
    parsed_ = true;
}

void ProfileImage::noteKey(const std::string& prefix, std::string_view text, std::size_t line) {
    keys_.try_emplace(prefix + texts_->upper(trimBlanks(text.substr(0, text.find('=')))), line);
}

std::string ProfileImage::lookupName(std::string_view section, std::string_view key) const {
    return texts_->upper(trimBlanks(section)).append("\n").append(texts_->upper(trimBlanks(key)));
}

void ProfileImage::goTo(std::size_t line) {
    while (line_ < line) {
        start_ += lengths_[line_++];
    }
    while (line_ > line) {
        start_ -= lengths_[--line_];
    }
}

std::string_view ProfileImage::lineText() const {
    return std::string_view(text_).substr(start_, lengths_[line_]);
}

} // namespace tarvelon
