#pragma once

#include <string>
#include <vector>

namespace e2e {

/// A program in the place of an anti-virus scanner, which writes down how it was started.
class RecordingScanner {
public:
    explicit RecordingScanner(std::string path);

    const std::string& path() const { return path_; }

    /// How each of the first `count` runs was started, in the order of their starts; fewer when they do not
    /// come.
    std::vector<std::string> records(std::size_t count) const;
    std::vector<std::string> recordsNow() const;

private:
    std::string path_;
};

} // namespace e2e
