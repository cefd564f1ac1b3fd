#include "platform/win32/win32_files.h"

#include "platform/win32/parts.h"

namespace tarvelon {

Win32Files::~Win32Files() {
    endListing();
}

void Win32Files::endListing() {
    if (listing_ != INVALID_HANDLE_VALUE) {
        FindClose(listing_);
        listing_ = INVALID_HANDLE_VALUE;
    }
}

std::string Win32Files::firstName(const std::string& folder) {
    endListing();
    WIN32_FIND_DATAA found;
    listing_ = FindFirstFileA((folder + "*").c_str(), &found);
    return listing_ == INVALID_HANDLE_VALUE ? std::string() : found.cFileName;
}

std::string Win32Files::nextName() {
    if (listing_ == INVALID_HANDLE_VALUE) {
        return {};
    }
    WIN32_FIND_DATAA found;
    if (!FindNextFileA(listing_, &found)) {
        endListing();
        return {};
    }
    return found.cFileName;
}

std::unique_ptr<OpenFile> Win32Files::open(const std::string& path, OpenMode mode) {
    return openFile(path, mode);
}

std::optional<std::uint64_t> Win32Files::length(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data) ||
        (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return std::nullopt;
    }
    return (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
}

bool Win32Files::move(const std::string& from, const std::string& to) {
    constexpr int waits = 10;
    constexpr DWORD wait = 50;
    for (int waited = 0; !moveAtOnce(from, to); ++waited) {
        const DWORD error = GetLastError();
        const bool isHeld = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!isHeld || waited == waits) {
            return false;
        }
        Sleep(wait);
    }
    return true;
}

bool Win32Files::moveAtOnce(const std::string& from, const std::string& to) {
    if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING)) {
        return true;
    }
    if (GetLastError() != ERROR_CALL_NOT_IMPLEMENTED) {
        return false;
    }
    DeleteFileA(to.c_str()); // Windows 98 knows only the way in two steps.
    return MoveFileA(from.c_str(), to.c_str()) != FALSE;
}

bool Win32Files::remove(const std::string& path) {
    return DeleteFileA(path.c_str()) != FALSE;
}

bool Win32Files::createFolder(const std::string& path) {
    return CreateDirectoryA(path.c_str(), nullptr) != FALSE;
}

bool Win32Files::searchTreeForFile(const std::string& root, const std::string& name, char* buffer) {
    if (!imageHelp_) {
        imageHelp_.emplace("imagehlp.dll");
    }
    using SearchTreeForFile = BOOL WINAPI(PCSTR root, PCSTR name, PSTR buffer);
    const auto search = imageHelp_->find<SearchTreeForFile>("SearchTreeForFile");
    return search && search(root.c_str(), name.c_str(), buffer) != FALSE;
}

std::uint32_t Win32Files::getShortPathName(const std::string& path, char* buffer, std::uint32_t size) {
    return GetShortPathNameA(path.c_str(), buffer, size);
}

} // namespace tarvelon
