#pragma once

#include <string>

namespace tarvelon {

struct Platform;
class TextRules;

/// Small procedures over the platform that all subsystems call. None shows a message.
class FuncMod {
public:
    FuncMod(Platform& platform, const TextRules& texts)
        : platform_(platform)
        , texts_(texts) {}

    /// Whether the file can be opened for reading: a locked file counts as absent, and so does a folder.
    bool fileThere(const std::string& path) const;

    /// With a trailing backslash.
    std::string getSysDir() const;
    /// With a trailing backslash; empty when the path fills the buffer.
    std::string getWinDir() const;

    static constexpr int programFiles = 38;
    /// The folder of a CSIDL number, with a trailing backslash; "\" for one that the system does not know.
    std::string getSpecialFolder(int id = programFiles) const;

    /// Full path of the first file of that name in the tree below `root`, or empty. Can take long; the window
    /// does not respond meanwhile.
    std::string findInTree(const std::string& root, const std::string& name) const;

    /// The chosen file, with the zeros behind its name in the buffer, or empty.
    std::string openFileBox(const std::string& title, const std::string& filter) const;

    /// The chosen folder, or empty.
    std::string browseFolder(const std::string& title) const;

private:
    Platform& platform_;
    const TextRules& texts_;
};

} // namespace tarvelon
