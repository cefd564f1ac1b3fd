#pragma once

#include "core/profile_image.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarvelon {

class Files;
class OpenFile;

/// Reads and writes single entries of profile files on the disk. The text last used is kept, and used again
/// as long as the file's length and time of last write show that nobody else has changed it, so that
/// thousands of writes to one file cost neither a parse nor a whole rewrite each. No file stays open between
/// calls.
class ProfileFiles {
public:
    ProfileFiles(Files& files, const TextRules& texts)
        : files_(files)
        , image_(texts) {}

    /// Empty when the file, the section or the key is not there.
    std::string read(const std::string& path, const std::string& section, const std::string& key);

    /// On the disk when the call returns. A missing file is made. The change is one write, so that a process
    /// that is killed leaves the file as it was or as it is to be. False when that fails, and the file then
    /// holds what it held: of a write that broke off, as on a full disk, the old bytes are put back where
    /// they were, and only a disk that refuses that too leaves an uncertain end.
    bool write(const std::string& path, const std::string& section, const std::string& key,
               const std::string& value);

private:
    /// Tells two states of a file apart.
    struct Stamp {
        std::uint64_t length;
        std::uint64_t lastWrite;
        bool operator==(const Stamp&) const = default;
    };

    static std::optional<Stamp> stampOf(OpenFile& file);
    bool refresh(const std::string& path, OpenFile& file);
    bool writeFrom(OpenFile& file, std::size_t position, std::size_t oldLength);
    void putBack(OpenFile& file, const ProfileImage::Change& change);

    Files& files_;
    ProfileImage image_;
    std::string path_; ///< Whose text the image is; empty for none.
    std::optional<Stamp> stamp_;
};

} // namespace tarvelon
