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

/// The name in a section head, or nothing for any other line.
std::optional<std::string_view> sectionHead(std::string_view line) {
    if (line.empty() || line.front() != '[') {
        return std::nullopt;
    }
    const std::size_t close = line.find(']');
    if (close == std::string_view::npos) {
        return std::nullopt;
    }
    return trimBlanks(line.substr(1, close - 1));
}

} // namespace

void ProfileImage::setText(std::string text) {
    text_ = std::move(text);
    parsed_ = false;
}

std::optional<std::string> ProfileImage::read(std::string_view section, std::string_view key) {
    parse();
    const auto found = lines_.find(lookupName(section, key));
    if (found == lines_.end()) {
        return std::nullopt;
    }
    const std::string_view line =
        withoutLineEnd(std::string_view(text_).substr(lineStart(found->second), lengths_[found->second]));
    return std::string(withoutQuotes(trimBlanks(line.substr(line.find('=') + 1))));
}

std::size_t ProfileImage::write(std::string_view section, std::string_view key, std::string_view value) {
    parse();
    const auto found = lines_.find(lookupName(section, key));
    if (found != lines_.end()) {
        const std::size_t number = found->second;
        const std::size_t start = lineStart(number);
        const std::string_view old = std::string_view(text_).substr(start, lengths_[number]);
        const std::string_view body = withoutLineEnd(old);
        const std::string ending(old.substr(body.size()));
        const std::string line =
            std::string(body.substr(0, body.find('='))).append("=").append(value).append(ending);
        const std::size_t oldLength = old.size();
        text_.replace(start, oldLength, line);
        resizeLine(number, oldLength, line.size());
        return start;
    }

    const std::string entry = std::string(key).append("=").append(value).append(lineEnd);
    const auto home = sections_.find(lookupName(section, {}));
    if (home != sections_.end()) {
        const std::size_t last = home->second.lastUsedLine;
        return insertLines(lineStart(last) + lengths_[last], entry);
    }
    return insertLines(
        text_.size(), std::string("[").append(trimBlanks(section)).append("]").append(lineEnd).append(entry));
}

/// Splits the text into lines and notes the first line of each key and the extent of each section. Of two
/// sections with one name the first counts.
void ProfileImage::parse() {
    if (parsed_) {
        return;
    }
    lengths_.clear();
    lines_.clear();
    sections_.clear();
    Section* current = nullptr;
    std::string prefix;
    for (std::size_t start = 0; start < text_.size();) {
        const std::size_t feed = text_.find('\n', start);
        const std::size_t end = feed == std::string::npos ? text_.size() : feed + 1;
        const std::size_t number = lengths_.size();
        lengths_.push_back(static_cast<std::uint32_t>(end - start));
        const std::string_view line =
            trimBlanks(withoutLineEnd(std::string_view(text_).substr(start, end - start)));
        start = end;

        if (const auto head = sectionHead(line)) {
            prefix = lookupName(*head, {});
            const auto [place, isNew] = sections_.try_emplace(prefix, Section{number});
            current = isNew ? &place->second : nullptr;
            continue;
        }
        if (!current || line.empty()) {
            continue;
        }
        current->lastUsedLine = number;
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos && line.front() != ';') {
            lines_.try_emplace(prefix + cases_->upper(trimBlanks(line.substr(0, equals))), number);
        }
    }

    sums_.assign(lengths_.size() + 1, 0);
    for (std::size_t i = 1; i < sums_.size(); ++i) {
        sums_[i] += lengths_[i - 1];
        const std::size_t parent = i + (i & (~i + 1));
        if (parent < sums_.size()) {
            sums_[parent] += sums_[i];
        }
    }
    parsed_ = true;
}

std::string ProfileImage::lookupName(std::string_view section, std::string_view key) const {
    return cases_->upper(trimBlanks(section)).append("\n").append(cases_->upper(trimBlanks(key)));
}

std::size_t ProfileImage::lineStart(std::size_t line) const {
    std::size_t start = 0;
    for (std::size_t i = line; i > 0; i &= i - 1) {
        start += sums_[i];
    }
    return start;
}

void ProfileImage::resizeLine(std::size_t line, std::size_t oldLength, std::size_t newLength) {
    const auto difference = static_cast<std::uint32_t>(newLength) - static_cast<std::uint32_t>(oldLength);
    lengths_[line] += difference; // Unsigned arithmetic wraps, so a shrinking line comes out right.
    for (std::size_t i = line + 1; i < sums_.size(); i += i & (~i + 1)) {
        sums_[i] += difference;
    }
}

/// Puts whole lines in front of `position`, and a line end first where the text before lacks one.
std::size_t ProfileImage::insertLines(std::size_t position, std::string_view lines) {
    const bool openLine = position > 0 && text_[position - 1] != '\n';
    text_.insert(position, (openLine ? std::string(lineEnd) : std::string()).append(lines));
    parsed_ = false;
    return position;
}

} // namespace tarvelon
