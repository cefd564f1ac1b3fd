#pragma once

#include <cstdint>

namespace tarvelon {

/// The places that the system knows by name.
class SystemFolders {
public:
    virtual ~SystemFolders() = default;

    /// `GetSystemDirectoryA`: the length without the final zero; more than `size` when the buffer is too
    /// small; 0 on failure.
    virtual std::uint32_t getSystemDirectory(char* buffer, std::uint32_t size) = 0;

    /// `GetWindowsDirectoryA`: as above.
    virtual std::uint32_t getWindowsDirectory(char* buffer, std::uint32_t size) = 0;

    /// `SHGetSpecialFolderLocation` and `SHGetPathFromIDList` for a CSIDL number. `buffer` holds at least
    /// 260 bytes. False when the system knows no such folder; the buffer is then as it was.
    virtual bool getSpecialFolderPath(int csidl, char* buffer) = 0;
};

} // namespace tarvelon
