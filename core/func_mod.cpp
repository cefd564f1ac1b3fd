#include "core/func_mod.h"

#include "core/text.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

namespace {

/// What stands in front of the first zero.
std::string cutAtZero(const std::string& buffer) {
    return buffer.substr(0, buffer.find('\0'));
}

} // namespace

bool FuncMod::fileThere(const std::string& path) const {
    return platform_.files.open(path, OpenMode::Read) != nullptr;
}

std::string FuncMod::getSysDir() const {
    std::string buffer(144, '\0');
    const auto size = static_cast<std::uint32_t>(buffer.size());
    const std::uint32_t length = platform_.folders.getSystemDirectory(buffer.data(), size);
    return texts_.withBackslash(buffer.substr(0, std::min(length, size)));
}

std::string FuncMod::getWinDir() const {
    std::string buffer(SystemFolders::pathRoom, '\0');
    platform_.folders.getWindowsDirectory(buffer.data(), static_cast<std::uint32_t>(buffer.size()));
    return buffer.find('\0') == std::string::npos ? std::string() : texts_.withBackslash(cutAtZero(buffer));
}

std::string FuncMod::getSpecialFolder(int id) const {
    std::string buffer(SystemFolders::pathRoom, '\0');
    platform_.folders.getSpecialFolderPath(id, buffer.data());
    buffer.resize(255);
    const std::string folder = trim(cutAtZero(buffer));
    return folder == "\\" ? "C:\\Program Files\\" : texts_.withBackslash(folder);
}

std::string FuncMod::findInTree(const std::string& root, const std::string& name) const {
    platform_.messages.pump();
    std::string buffer(520, ' ');
    const bool hit = platform_.files.searchTreeForFile(root, name, buffer.data());
    platform_.messages.pump();
    return hit ? cutAtZero(buffer) : std::string();
}

std::string FuncMod::openFileBox(const std::string& title, const std::string& filter) const {
    OpenFileRecord record;
    record.filter = filter;
    record.file.assign(257, '\0');
    record.maxFile = 256;
    record.title = title;
    return platform_.dialogs.getOpenFileName(record) ? trim(record.file) : std::string();
}

std::string FuncMod::browseFolder(const std::string& title) const {
    constexpr std::uint32_t fileSystemFoldersOnly = 1;
    std::string buffer(SystemFolders::pathRoom, '\0');
    if (!platform_.dialogs.browseForFolder(title, fileSystemFoldersOnly, buffer.data())) {
        return {};
    }
    buffer.resize(255);
    return cutAtZero(buffer);
}

} // namespace tarvelon
