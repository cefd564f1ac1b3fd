#pragma once

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <algorithm>

namespace e2e {

/// A program in the place of an anti-virus scanner, which writes down how it was started.
class RecordingScanner {
public:
    explicit RecordingScanner(std::string path)
        : path_(std::move(path)) {
        char own[MAX_PATH] = {};
        GetModuleFileNameA(nullptr, own, sizeof own);
        const std::string beside = std::string(own).substr(0, std::string(own).rfind('\\') + 1);
        if (CopyFileA((beside + "recording_scanner.exe").c_str(), path_.c_str(), FALSE) == 0) {
            throw std::runtime_error("cannot copy the recording scanner to " + path_);
        }
    }

    const std::string& path() const { return path_; }

    /// How each of the first `count` runs was started, in the order of their starts; fewer when they do not
    /// come.
    std::vector<std::string> records(std::size_t count) const {
        std::vector<std::string> all;
        comesTrue([&] { return (all = recordsNow()).size() >= count; });
        return all;
    }

    std::vector<std::string> recordsNow() const {
        const std::string text = readFile(path_ + ".txt").value_or("");
        std::vector<std::string> all;
        for (std::size_t from = 0, end = 0; (end = text.find("\r\n", from)) != std::string::npos;
             from = end + 2) {
            all.push_back(text.substr(from, end - from));
        }
        std::sort(all.begin(), all.end());
        for (std::string& line : all) {
            line.erase(0, line.find(' ') + 1); // the moment of the start
        }
        return all;
    }

private:
    std::string path_;
};

} // namespace e2e
