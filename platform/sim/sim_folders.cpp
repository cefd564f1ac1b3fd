#include "platform/sim/sim_folders.h"

#include "platform/sim/faults.h"

#include <cstring>

namespace tarvelon {

namespace {

// The rule of the system's directory calls: a buffer that is too small stays untouched, and the answer is the
// size that would do, with the final zero.
std::uint32_t giveDirectory(const std::string& path, char* buffer, std::uint32_t size) {
    const auto length = static_cast<std::uint32_t>(path.size());
    if (length >= size) {
        return length + 1;
    }
    std::memcpy(buffer, path.c_str(), length + 1);
    return length;
}

} // namespace

SimFolders::SimFolders(Faults& faults)
    : special{
          {0, R"(C:\Documents and Settings\User\Desktop)"},
          {2, R"(C:\Documents and Settings\User\Start Menu\Programs)"},
          {24, R"(C:\Documents and Settings\All Users\Start Menu\Programs\Startup)"},
          {38, R"(C:\Program Files)"},
      }
    , faults_(faults) {}

std::uint32_t SimFolders::getSystemDirectory(char* buffer, std::uint32_t size) {
    return faults_.strikes(Operation::SystemDirectory) ? 0 : giveDirectory(systemDirectory, buffer, size);
}

std::uint32_t SimFolders::getWindowsDirectory(char* buffer, std::uint32_t size) {
    return faults_.strikes(Operation::WindowsDirectory) ? 0 : giveDirectory(windowsDirectory, buffer, size);
}

bool SimFolders::getSpecialFolderPath(int csidl, char* buffer) {
    const auto known = special.find(csidl);
    if (faults_.strikes(Operation::SpecialFolder) || known == special.end()) {
        return false;
    }
    std::memcpy(buffer, known->second.c_str(), known->second.size() + 1);
    return true;
}

} // namespace tarvelon
