#include "platform/win32/win32_files.h"

#include "platform/win32/parts.h"

#include <utility>

namespace tarvelon {

std::string Win32Files::firstName(const std::string& folder) {
    const bool namesHold =
        allListed_ && change_ && folder == folder_ && WaitForSingleObject(change_.get(), 0) == WAIT_TIMEOUT;
    if (!namesHold) {
        list(folder);
    }
    next_ = 0;
    return nextName();
}

void Win32Files::list(const std::string& folder) {
    OwnedChange change;
    if (folder == folder_) {
        // Listed twice in a row, it may well be listed again. From before the first name on no change goes
        // unnoticed.
        change.reset(validOrNull(FindFirstChangeNotificationA(
            folder.c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME)));
    }
    change_ = std::move(change);
    folder_ = folder;
    names_.clear();
    allListed_ = false;
    WIN32_FIND_DATAA found;
    listing_.reset(validOrNull(FindFirstFileA((folder + "*").c_str(), &found)));
    if (listing_) {
        names_.emplace_back(found.cFileName);
    }
}

std::string Win32Files::nextName() {
    if (next_ < names_.size()) {
        return names_[next_++];
    }
    if (!listing_) {
        return {};
    }
    WIN32_FIND_DATAA found;
    if (!FindNextFileA(listing_.get(), &found)) {
        listing_.reset();
        allListed_ = true;
        return {};
    }
    ++next_;
    return names_.emplace_back(found.cFileName);
}

void Win32Files::forgetListing() {
    change_.reset();
    if (allListed_) {
        names_.clear();
        next_ = 0;
        allListed_ = false;
    }
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
