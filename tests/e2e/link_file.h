#pragma once

#include <optional>
#include <string>

namespace e2e {

/// What a link file holds.
struct LinkFile {
    std::string target;
    std::string arguments;
    std::string workingFolder;
    std::string description;
    std::string icon; ///< File and index, with a comma between them.
    int show = 0;
};

/// Read by the system's own object; empty when there is no link at the path.
std::optional<LinkFile> readLink(const std::string& path);

} // namespace e2e
