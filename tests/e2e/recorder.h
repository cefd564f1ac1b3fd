#pragma once

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <set>
#include <sstream>

namespace e2e {

/// A program in the place of an anti-virus scanner, which writes down how it was started.
class RecordingScanner {
public:
    explicit RecordingScanner(std::string path)
        : path_(std::move(path)) {
        copyFile(ownFolder() + "recording_scanner.exe", path_);
    }

    const std::string& path() const { return path_; }

    /// How each run was started, in the order of their starts, when there are so many or no more come.
    std::vector<std::string> records(std::size_t count = 0) const {
        std::multiset<std::string> lines;
        comesTrue([&] {
            lines.clear();
            std::istringstream text(readFile(path_ + ".txt").value_or(""));
            for (std::string line; std::getline(text, line);) {
                lines.insert(line);
            }
            return lines.size() >= count;
        });
        std::vector<std::string> all;
        for (const std::string& line : lines) {
            all.push_back(line.substr(line.find(' ') + 1)); // Behind the moment of the start.
        }
        return all;
    }

private:
    std::string path_;
};

} // namespace e2e
