#include "platform/win32/parts.h"

#include "platform/win32/owned.h"
#include "platform/win32/wide.h"

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

struct OpenArguments {
    DWORD access;
    DWORD disposition;
    DWORD flags;
};

OpenArguments argumentsFor(OpenMode mode) {
    switch (mode) {
    case OpenMode::Read:
        return {GENERIC_READ, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN};
    case OpenMode::ReadOrCreate:
        return {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL};
    case OpenMode::Create:
        break;
    }
    return {GENERIC_READ | GENERIC_WRITE, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL};
}

/// Whoever else uses the file may go on. Windows 98 refuses an open that names deleting, which it does not
/// know.
HANDLE opened(const std::string& path, const OpenArguments& arguments) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE;
    return hasWideCalls() ? CreateFileW(widePath(path).c_str(), arguments.access, sharing | FILE_SHARE_DELETE,
                                        nullptr, arguments.disposition, arguments.flags, nullptr)
                          : CreateFileA(path.c_str(), arguments.access, sharing, nullptr,
                                        arguments.disposition, arguments.flags, nullptr);
}

/// The largest piece handed to one system call, whose counts have 32 bits.
constexpr std::size_t largestPiece = std::size_t{1} << 30;

/// A file handle that remembers where it stands, so that reading on needs one call only.
class Win32OpenFile : public OpenFile {
public:
    explicit Win32OpenFile(OwnedHandle file)
        : file_(std::move(file)) {}

    std::optional<std::uint64_t> length() override {
        DWORD high = 0;
        SetLastError(NO_ERROR);
        const DWORD low = GetFileSize(file_.get(), &high);
        if (low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR) {
            return std::nullopt;
        }
        return (std::uint64_t{high} << 32) | low;
    }

    std::optional<std::uint64_t> lastWrite() override {
        FILETIME time;
        if (!GetFileTime(file_.get(), nullptr, nullptr, &time)) {
            return std::nullopt;
        }
        return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
    }

    /// A time that was set stays as it is when the file is closed. It is read again since some disks keep it
    /// in steps of seconds.
    std::optional<std::uint64_t> touch() override {
        FILETIME now;
        GetSystemTimeAsFileTime(&now);
        return SetFileTime(file_.get(), nullptr, nullptr, &now) ? lastWrite() : std::nullopt;
    }

    std::optional<std::size_t> readAt(std::uint64_t position, void* buffer, std::size_t count) override {
        if (!moveTo(position)) {
            return std::nullopt;
        }
        std::size_t done = 0;
        while (done < count) {
            const DWORD piece = static_cast<DWORD>(std::min(count - done, largestPiece));
            DWORD came = 0;
            if (!ReadFile(file_.get(), static_cast<char*>(buffer) + done, piece, &came, nullptr)) {
                return std::nullopt;
            }
            done += came;
            position_ += came;
            if (came < piece) {
                break;
            }
        }
        return done;
    }

    bool writeAt(std::uint64_t position, std::string_view bytes) override {
        if (!moveTo(position)) {
            return false;
        }
        while (!bytes.empty()) {
            const DWORD piece = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
            DWORD written = 0;
            if (!WriteFile(file_.get(), bytes.data(), piece, &written, nullptr)) {
                return false;
            }
            position_ += written;
            if (written < piece) {
                return false;
            }
            bytes.remove_prefix(piece);
        }
        return true;
    }

    bool setLength(std::uint64_t length) override {
        return moveTo(length) && SetEndOfFile(file_.get()) != FALSE;
    }

    bool flush() override { return FlushFileBuffers(file_.get()) != FALSE; }

private:
    bool moveTo(std::uint64_t position) {
        if (position == position_) {
            return true;
        }
        LARGE_INTEGER target;
        target.QuadPart = static_cast<LONGLONG>(position);
        SetLastError(NO_ERROR);
        const DWORD low =
            SetFilePointer(file_.get(), static_cast<LONG>(target.LowPart), &target.HighPart, FILE_BEGIN);
        if (low == INVALID_SET_FILE_POINTER && GetLastError() != NO_ERROR) {
            return false;
        }
        position_ = position;
        return true;
    }

    OwnedHandle file_;
    std::uint64_t position_ = 0;
};

} // namespace

std::unique_ptr<OpenFile> openFile(const std::string& path, OpenMode mode) {
    OwnedHandle file(validOrNull(opened(path, argumentsFor(mode))));
    return file ? std::make_unique<Win32OpenFile>(std::move(file)) : nullptr;
}

} // namespace tarvelon
