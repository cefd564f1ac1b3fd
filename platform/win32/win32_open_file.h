#pragma once

#include "platform/files.h"
#include "platform/win32/windows_api.h"

namespace tarvelon {

/// A file handle that remembers where it stands, so that reading on needs one call only.
class Win32OpenFile : public OpenFile {
public:
    static std::unique_ptr<OpenFile> open(const std::string& path, OpenMode mode);

    explicit Win32OpenFile(HANDLE file)
        : file_(file) {}
    ~Win32OpenFile() override;

    std::optional<std::uint64_t> length() override;
    std::optional<std::uint64_t> lastWrite() override;
    std::optional<std::uint64_t> touch() override;
    std::optional<std::size_t> readAt(std::uint64_t position, void* buffer, std::size_t count) override;
    bool writeAt(std::uint64_t position, std::string_view bytes) override;
    bool setLength(std::uint64_t length) override;
    bool flush() override;

private:
    bool moveTo(std::uint64_t position);

    HANDLE file_;
    std::uint64_t position_ = 0;
};

} // namespace tarvelon
