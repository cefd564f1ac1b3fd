#include "ui/shortcuts.h"

#include "core/text.h"
#include "platform/folders.h"
#include "platform/platform.h"

namespace tarvelon {

namespace {

constexpr int startupFolder = 24;
constexpr int programsFolder = 2;

std::string specialFolder(Platform& platform, int csidl) {
    std::string buffer(260, '\0');
    return platform.folders.getSpecialFolderPath(csidl, buffer.data()) ? buffer.substr(0, buffer.find('\0'))
                                                                       : std::string();
}

} // namespace

std::string getStartupFolder(Platform& platform) {
    std::string folder = specialFolder(platform, startupFolder);
    if (folder.empty()) {
        folder = specialFolder(platform, programsFolder) + "\\StartUp";
    }
    return trim(folder);
}

std::string autoLoadShortcut(Platform& platform) {
    return withBackslash(getStartupFolder(platform)) + "Tarvelon.lnk";
}

} // namespace tarvelon
