#pragma once

#include "platform/files.h"

#include <sys/stat.h>

#include <set>

namespace tarvelon {

class Faults;

/// An open file of the host, by its descriptor, which it closes. As long as bytes of it have not been
/// flushed, it stands among the unflushed.
class HostFile : public OpenFile {
public:
    HostFile(int descriptor, Faults& faults, std::set<ino_t>& unflushed);
    ~HostFile() override;

    std::optional<std::uint64_t> length() override;
    std::optional<std::uint64_t> lastWrite() override;
    std::optional<std::uint64_t> touch() override;
    std::optional<std::size_t> readAt(std::uint64_t position, void* buffer, std::size_t count) override;
    bool writeAt(std::uint64_t position, std::string_view bytes) override;
    bool setLength(std::uint64_t length) override;
    bool flush() override;

    /// Cuts the file to nothing, past all faults.
    bool empty();

private:
    struct stat status() const;
    std::uint64_t hostLength() const { return static_cast<std::uint64_t>(status().st_size); }

    int descriptor_;
    Faults& faults_;
    std::set<ino_t>& unflushed_;
    std::optional<timespec> oldTime_; ///< Of a file that was written, as long as it is open.
};

} // namespace tarvelon
