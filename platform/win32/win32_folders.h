#pragma once

#include "platform/folders.h"

namespace tarvelon {

class Win32SystemFolders : public SystemFolders {
public:
    std::uint32_t getSystemDirectory(char* buffer, std::uint32_t size) override;
    std::uint32_t getWindowsDirectory(char* buffer, std::uint32_t size) override;
    bool getSpecialFolderPath(int csidl, char* buffer) override;
};

} // namespace tarvelon
