#include "ui/short_cut.h"

#include "core/text.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "platform/shortcuts.h"

namespace tarvelon::shortCut {

namespace {

constexpr int startupFolder = 24;
constexpr int programsFolder = 2;

std::string specialFolder(Platform& platform, int csidl) {
    std::string buffer(SystemFolders::pathRoom, '\0');
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

std::string autoLoadShortcut(Platform& platform, const TextRules& texts) {
    return texts.withBackslash(getStartupFolder(platform)) + "Tarvelon.lnk";
}

bool makeShortcut(Platform& platform, const std::string& linkPath, const std::string& target,
                  const std::string& workDir, const std::string& args, const std::string& iconFile,
                  std::int32_t iconIndex, std::int32_t showCmd) {
    constexpr std::uint32_t updateThePath = 4;
    if (linkPath.empty() || target.empty()) {
        return false;
    }
    return platform.shortcuts.saveShellLink(linkPath, {.path = target,
                                                       .workingDirectory = workDir,
                                                       .arguments = args,
                                                       .description = std::string("Access Shortcut") + '\0',
                                                       .iconFile = iconFile,
                                                       .iconIndex = iconIndex,
                                                       .showCmd = showCmd,
                                                       .resolveFlags = updateThePath});
}

bool makeShortcutWsh(Platform& platform, const std::string& linkPath, const std::string& description,
                     const std::string& target, const std::string& args, std::int32_t windowStyle) {
    const std::string ending = lowerAscii(std::string(lastCharacters(linkPath, 4)));
    const bool isLink = ending == ".lnk" || ending == ".url";
    return platform.shortcuts.saveScripted(
        isLink ? linkPath : linkPath + ".lnk",
        {.arguments = args, .description = description, .targetPath = target, .windowStyle = windowStyle});
}

} // namespace tarvelon::shortCut
