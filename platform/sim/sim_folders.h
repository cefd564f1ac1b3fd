#pragma once

#include "platform/folders.h"

#include <map>
#include <string>

namespace tarvelon {

class Faults;

/// The system's own folders. All are plain values that a test may change or remove.
class SimFolders : public SystemFolders {
public:
    explicit SimFolders(Faults& faults);

    std::string systemDirectory = R"(C:\WINDOWS\system32)";
    std::string windowsDirectory = R"(C:\WINDOWS)";
    /// By CSIDL number.
    std::map<int, std::string> special;

    std::uint32_t getSystemDirectory(char* buffer, std::uint32_t size) override;
    std::uint32_t getWindowsDirectory(char* buffer, std::uint32_t size) override;
    bool getSpecialFolderPath(int csidl, char* buffer) override;

private:
    Faults& faults_;
};

} // namespace tarvelon
