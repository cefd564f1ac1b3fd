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
std::string_view missingLineEnd(std::string_view lastCharacter) {
    return lastCharacter == "\n" ? "" : lastCharacter == "\r" ? "\n" : lineEnd;
}

} // namespace

void ProfileImage::setText(std::string text) {
    text_.set(std::move(text));
    parsed_ = false;
}

std::optional<std::string> ProfileImage::read(std::string_view section, std::string_view key) {
    parse();
    const auto found = keys_.find(lookupName(section, key));
    if (found == keys_.end()) {
        return std::nullopt;
    }
    const std::string_view line =
        withoutLineEnd(text_.piece(lineStart(found->second), lineLength(found->second)));
    return std::string(withoutQuotes(trimBlanks(line.substr(line.find('=') + 1))));
}

std::size_t ProfileImage::write(std::string_view section, std::string_view key, std::string_view value) {
    parse();
    const auto found = keys_.find(lookupName(section, key));
    if (found != keys_.end()) {
        const std::size_t start = lineStart(found->second);
        replaceValue(found->second, start, value);
        return start;
    }

    const std::string entry = std::string(key).append("=").append(value).append(lineEnd);
    const std::string prefix = lookupName(section, {});
    const auto home = sections_.find(prefix);
    if (home != sections_.end()) {
        const std::size_t part = home->second;
        const std::size_t position = partLengths_.before(part) + parts_[part].lines.total();
        insertEntry(part, prefix, position, entry);
        return position;
    }
    const std::size_t position = text_.size();
    text_.replace(position, 0,
                  std::string(position > 0 ? missingLineEnd(from(position - 1)) : "")
                      .append("[")
                      .append(trimBlanks(section))
                      .append("]")
                      .append(lineEnd)
                      .append(entry));
    parsed_ = false;
    return position;
}

void ProfileImage::undo() {
    text_.undo();
    parsed_ = false;
}

void ProfileImage::replaceValue(Place place, std::size_t start, std::string_view value) {
    const std::string_view old = text_.piece(start, lineLength(place));
    const std::size_t oldLength = old.size();
    const std::string_view body = withoutLineEnd(old);
    const std::string_view ending = old.ends_with('\n') ? old.substr(body.size()) : lineEnd;
    const std::string line =
        std::string(body.substr(0, body.find('='))).append("=").append(value).append(ending);
    text_.replace(start, oldLength, line);
    parts_[place.part].lines.add(place.line, line.size() - oldLength);
    partLengths_.add(place.part, line.size() - oldLength);
    parsed_ = isOneLine(line);
}

/// Puts a new line behind a part's last one, and a line end first where that one lacks it.
void ProfileImage::insertEntry(std::size_t part, const std::string& prefix, std::size_t position,
                               const std::string& entry) {
    const std::string_view missing = missingLineEnd(text_.piece(position - 1, 1));
    text_.replace(position, 0, std::string(missing).append(entry));
    if (!missing.empty() || !isOneLine(entry)) {
        parsed_ = false;
        return;
    }
    PrefixSums& lines = parts_[part].lines;
    noteKey(prefix, entry, {part, lines.count()});
    lines.append(entry.size());
    partLengths_.add(part, entry.size());
}

/// Splits the text into parts and lines and notes the first line of each key. Of two sections with one name
/// the first counts.
void ProfileImage::parse() {
    if (parsed_) {
        return;
    }
    parts_.clear();
    partLengths_ = {};
    keys_.clear();
    sections_.clear();
    beginPart();
    bool counts = false;
    std::string prefix;
    const std::string_view text = from(0);
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t feed = text.find('\n', start);
        const std::size_t end = feed == std::string_view::npos ? text.size() : feed + 1;
        const std::size_t length = end - start;
        const std::string_view line = trimBlanks(withoutLineEnd(text.substr(start, length)));
        start = end;

        if (const auto head = sectionHead(line)) {
            beginPart();
            prefix = lookupName(*head, {});
            counts = sections_.try_emplace(prefix, parts_.size() - 1).second;
        } else if (line.empty()) {
            parts_.back().blankEnd += length;
            partLengths_.add(parts_.size() - 1, length);
            continue;
        }
        appendLine(length);
        if (counts && isEntry(line)) {
            noteKey(prefix, line, {parts_.size() - 1, parts_.back().lines.count() - 1});
        }
    }
    parsed_ = true;
}

void ProfileImage::beginPart() {
    parts_.emplace_back();
    partLengths_.append(0);
}

/// Blank lines in front of another line count as one with them all.
void ProfileImage::appendLine(std::size_t length) {
    Part& part = parts_.back();
    if (part.blankEnd > 0) {
        part.lines.append(part.blankEnd);
        part.blankEnd = 0;
    }
    part.lines.append(length);
    partLengths_.add(parts_.size() - 1, length);
}

void ProfileImage::noteKey(const std::string& prefix, std::string_view line, Place place) {
    keys_.try_emplace(prefix + cases_->upper(trimBlanks(line.substr(0, line.find('=')))), place);
}

std::string ProfileImage::lookupName(std::string_view section, std::string_view key) const {
    return cases_->upper(trimBlanks(section)).append("\n").append(cases_->upper(trimBlanks(key)));
}

std::size_t ProfileImage::lineStart(Place place) const {
    return partLengths_.before(place.part) + parts_[place.part].lines.before(place.line);
}

std::size_t ProfileImage::lineLength(Place place) const {
    const PrefixSums& lines = parts_[place.part].lines;
    return lines.before(place.line + 1) - lines.before(place.line);
}

} // namespace tarvelon
