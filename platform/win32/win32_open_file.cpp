#include "platform/win32/win32_open_file.h"

#include <algorithm>

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

/// Whoever else uses the file may go on. Systems before the NT family refuse an open that names deleting,
/// which they do not know.
DWORD sharing() {
    static const bool ntFamily = GetVersion() < 0x80000000;
    return FILE_SHARE_READ | FILE_SHARE_WRITE | (ntFamily ? FILE_SHARE_DELETE : 0);
}

/// The largest piece handed to one system call, whose counts have 32 bits.
constexpr std::size_t largestPiece = std::size_t{1} << 30;

} // namespace

std::unique_ptr<OpenFile> Win32OpenFile::open(const std::string& path, OpenMode mode) {
    const OpenArguments arguments = argumentsFor(mode);
    const HANDLE file = CreateFileA(path.c_str(), arguments.access, sharing(), nullptr, arguments.disposition,
                                    arguments.flags, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return std::make_unique<Win32OpenFile>(file);
}

Win32OpenFile::~Win32OpenFile() {
    CloseHandle(file_);
}

std::optional<std::uint64_t> Win32OpenFile::length() {
    DWORD high = 0;
    SetLastError(NO_ERROR);
    const DWORD low = GetFileSize(file_, &high);
    if (low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR) {
        return std::nullopt;
    }
    return (std::uint64_t{high} << 32) | low;
}

std::optional<std::uint64_t> Win32OpenFile::lastWrite() {
    FILETIME time;
    if (!GetFileTime(file_, nullptr, nullptr, &time)) {
        return std::nullopt;
    }
    return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

/// A time that was set stays as it is when the file is closed. It is read again since some disks keep it in
/// steps of seconds.
std::optional<std::uint64_t> Win32OpenFile::touch() {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return SetFileTime(file_, nullptr, nullptr, &now) ? lastWrite() : std::nullopt;
}

bool Win32OpenFile::moveTo(std::uint64_t position) {
    if (position == position_) {
        return true;
    }
    LARGE_INTEGER target;
    target.QuadPart = static_cast<LONGLONG>(position);
    SetLastError(NO_ERROR);
    const DWORD low = SetFilePointer(file_, static_cast<LONG>(target.LowPart), &target.HighPart, FILE_BEGIN);
    if (low == INVALID_SET_FILE_POINTER && GetLastError() != NO_ERROR) {
        return false;
    }
    position_ = position;
    return true;
}

std::optional<std::size_t> Win32OpenFile::readAt(std::uint64_t position, void* buffer, std::size_t count) {
    if (!moveTo(position)) {
        return std::nullopt;
    }
    std::size_t done = 0;
    while (done < count) {
        const DWORD piece = static_cast<DWORD>(std::min(count - done, largestPiece));
        DWORD came = 0;
        if (!ReadFile(file_, static_cast<char*>(buffer) + done, piece, &came, nullptr)) {
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

bool Win32OpenFile::writeAt(std::uint64_t position, std::string_view bytes) {
    if (!moveTo(position)) {
        return false;
    }
    while (!bytes.empty()) {
        const DWORD piece = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
        DWORD written = 0;
        if (!WriteFile(file_, bytes.data(), piece, &written, nullptr)) {
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

bool Win32OpenFile::setLength(std::uint64_t length) {
    return moveTo(length) && SetEndOfFile(file_) != FALSE;
}

bool Win32OpenFile::flush() {
    return FlushFileBuffers(file_) != FALSE;
}

} // namespace tarvelon
