#pragma once

#include <algorithm>
#include <string_view>

namespace tarvelon {

/// What stands behind the program's name on a process's whole command line, without the blanks and tabs in
/// front of it. The name ends at its second quote, or without quotes at the first blank or tab.
inline std::string_view behindProgramName(std::string_view line) {
    const bool quoted = line.starts_with('"');
    const std::size_t nameEnd = quoted ? line.find('"', 1) : line.find_first_of(" \t");
    if (nameEnd == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = line.substr(quoted ? nameEnd + 1 : nameEnd);
    return rest.substr(std::min(rest.size(), rest.find_first_not_of(" \t")));
}

} // namespace tarvelon
