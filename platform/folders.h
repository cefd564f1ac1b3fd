#pragma once

#include <cstddef>
#include <cstdint>

namespace tarvelon {

/// The places that the system knows by name.
class SystemFolders {
public:
    virtual ~SystemFolders() = default;

    /// Bytes of room, the zero included, that calls need which fill in a path without asking for its size.
    static constexpr std::size_t pathRoom = 260;

    /// `GetSystemDirectoryA`: the length without the final zero; more than `size` when the buffer is too
    /// small; 0 on failure.
    virtual std::uint32_t getSystemDirectory(char* buffer, std::uint32_t size) = 0;

    /// `GetWindowsDirectoryA`: as above.
    virtual std::uint32_t getWindowsDirectory(char* buffer, std::uint32_t size) = 0;

    /// `SHGetSpecialFolderLocation` and `SHGetPathFromIDList` for a CSIDL number. `buffer` holds at least
    /// `pathRoom` bytes. False when the system knows no such folder; the buffer is then as it was.
    virtual bool getSpecialFolderPath(int csidl, char* buffer) = 0;
};

} // namespace tarvelon
