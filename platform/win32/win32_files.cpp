#include "platform/win32/win32_files.h"

#include "platform/win32/parts.h"
#include "platform/win32/wide.h"

#include <utility>

namespace tarvelon {

std::string nameOf(std::wstring_view found, std::wstring_view shortName) {
    if (auto name = exactNarrowText(found)) {
        return *std::move(name);
    }
    auto name = exactNarrowText(shortName);
    return name && !name->empty() ? *std::move(name) : narrowText(found);
}

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
        constexpr DWORD names = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME;
        change.reset(validOrNull(hasWideCalls()
                                     ? FindFirstChangeNotificationW(widePath(folder).c_str(), FALSE, names)
                                     : FindFirstChangeNotificationA(folder.c_str(), FALSE, names)));
    }
    change_ = std::move(change);
    folder_ = folder;
    names_.clear();
    allListed_ = false;
    const std::string all = folder + "*";
    WIN32_FIND_DATAW found;
    WIN32_FIND_DATAA narrow;
    listing_.reset(validOrNull(hasWideCalls() ? FindFirstFileW(widePath(all).c_str(), &found)
                                              : FindFirstFileA(all.c_str(), &narrow)));
    if (listing_) {
        names_.push_back(hasWideCalls() ? nameOf(found.cFileName, found.cAlternateFileName)
                                        : narrow.cFileName);
    }
}

std::string Win32Files::nextName() {
    if (next_ < names_.size()) {
        return names_[next_++];
    }
    if (!listing_) {
        return {};
    }
    WIN32_FIND_DATAW found;
    WIN32_FIND_DATAA narrow;
    if (!(hasWideCalls() ? FindNextFileW(listing_.get(), &found) : FindNextFileA(listing_.get(), &narrow))) {
        listing_.reset();
        allListed_ = true;
        return {};
    }
    ++next_;
    return names_.emplace_back(hasWideCalls() ? nameOf(found.cFileName, found.cAlternateFileName)
                                              : narrow.cFileName);
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
    if (!(hasWideCalls() ? GetFileAttributesExW(widePath(path).c_str(), GetFileExInfoStandard, &data)
                         : GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) ||
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
    if (hasWideCalls()) {
        return MoveFileExW(widePath(from).c_str(), widePath(to).c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
    }
    if (MoveFileA(from.c_str(), to.c_str())) {
        return true;
    }
    // Windows 98 knows only the way in two steps.
    return GetLastError() == ERROR_ALREADY_EXISTS && DeleteFileA(to.c_str()) &&
           MoveFileA(from.c_str(), to.c_str());
}

bool Win32Files::remove(const std::string& path) {
    return (hasWideCalls() ? DeleteFileW(widePath(path).c_str()) : DeleteFileA(path.c_str())) != FALSE;
}

bool Win32Files::createFolder(const std::string& path) {
    return (hasWideCalls() ? CreateDirectoryW(widePath(path).c_str(), nullptr)
                           : CreateDirectoryA(path.c_str(), nullptr)) != FALSE;
}

bool Win32Files::searchTreeForFile(const std::string& root, const std::string& name, char* buffer) {
    if (!debugHelp_) {
        debugHelp_.emplace("dbghelp.dll");
    }
    using SearchTreeForFileW = BOOL WINAPI(PCWSTR root, PCWSTR name, PWSTR buffer);
    if (const auto search = debugHelp_->find<SearchTreeForFileW>("SearchTreeForFileW")) {
        std::wstring found(32'768, L'\0');
        const bool hit = search(wideText(root).c_str(), wideText(name).c_str(), found.data()) != FALSE;
        constexpr std::uint32_t room = SystemFolders::pathRoom;
        return hit && giveText(reachablePath(found.c_str(), room - 1), buffer, room) > 0;
    }
    if (!imageHelp_) {
        imageHelp_.emplace("imagehlp.dll"); // Its form for narrow texts alone is everywhere.
    }
    using SearchTreeForFile = BOOL WINAPI(PCSTR root, PCSTR name, PSTR buffer);
    const auto search = imageHelp_->find<SearchTreeForFile>("SearchTreeForFile");
    return search && search(root.c_str(), name.c_str(), buffer) != FALSE;
}

std::uint32_t Win32Files::getShortPathName(const std::string& path, char* buffer, std::uint32_t size) {
    return hasWideCalls() ? giveText(shortPath(path), buffer, size)
                          : GetShortPathNameA(path.c_str(), buffer, size);
}

} // namespace tarvelon
