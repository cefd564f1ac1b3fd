#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelon {

/// What `Files::open` does with the file. In every mode other processes may go on using it.
enum class OpenMode {
    Read,         ///< Must exist; only read.
    ReadOrCreate, ///< Read and written; a missing file is made, empty.
    Create,       ///< Written; a missing file is made, an existing one is emptied.
};

/// One open file. Destroying it closes it. Positions and lengths are in bytes from 0.
class OpenFile {
public:
    OpenFile() = default;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    virtual ~OpenFile() = default;

    /// Empty when the system cannot tell.
    virtual std::optional<std::uint64_t> length() = 0;

    /// Time of the last write in the system's own unit; only good for comparing. Empty on failure.
    virtual std::optional<std::uint64_t> lastWrite() = 0;

    /// Makes the present time that of the last write, and gives it. Of a file that was written the time is
    /// else only sure once it has been closed.
    virtual std::optional<std::uint64_t> touch() = 0;

    /// Reads up to `count` bytes; gives how many came, fewer only at the end of the file. Empty on failure.
    virtual std::optional<std::size_t> readAt(std::uint64_t position, void* buffer, std::size_t count) = 0;

    /// False when not every byte was written.
    virtual bool writeAt(std::uint64_t position, std::string_view bytes) = 0;

    virtual bool setLength(std::uint64_t length) = 0;

    /// Returns when what was written is on the disk itself, beyond all caches.
    virtual bool flush() = 0;
};

/// Files and folders. Paths are in the system's 8-bit code page, with backslashes.
class Files {
public:
    virtual ~Files() = default;

    /// Starts listing a folder (path with its trailing backslash), folders and hidden files included, and
    /// gives the first name. Empty when there is none or the folder cannot be listed. The process has one
    /// listing: starting another ends this one.
    virtual std::string firstName(const std::string& folder) = 0;

    /// The listing's next name; empty at its end, or when no listing is open.
    virtual std::string nextName() = 0;

    /// Null when the file cannot be opened; a folder cannot.
    virtual std::unique_ptr<OpenFile> open(const std::string& path, OpenMode mode) = 0;

    /// Length by name, without opening. Empty for what is not there and for a folder.
    virtual std::optional<std::uint64_t> length(const std::string& path) = 0;

    /// Gives a file another name in its folder, that of another file too, which is then gone; but a read-only
    /// one stays, and the move fails. On failure both are as they were. Waits up to half a second for another
    /// program that holds one of the two.
    virtual bool move(const std::string& from, const std::string& to) = 0;
    virtual bool remove(const std::string& path) = 0;
    virtual bool createFolder(const std::string& path) = 0;

    /// `SearchTreeForFile`: looks for the name in the whole tree below `root`. On a hit, fills `buffer` (at
    /// least 260 bytes) with the path and a zero.
    virtual bool searchTreeForFile(const std::string& root, const std::string& name, char* buffer) = 0;

    /// `GetShortPathNameA`, each name in the form of at most eight and three characters: the length without
    /// the final zero; more than `size` when the buffer is too small; 0 on failure, as for what is not there.
    virtual std::uint32_t getShortPathName(const std::string& path, char* buffer, std::uint32_t size) = 0;
};

} // namespace tarvelon
