#include "regwatch/file_path.h"

#include "core/func_mod.h"
#include "core/text.h"

#include <array>

namespace tarvelon {

namespace {

/// A value that is not plain text has its zero inside, and blanks behind it.
std::string insideParentheses(const std::string& entry) {
    const std::size_t open = entry.find('(');
    const std::size_t start = open == std::string::npos ? 0 : open + 1;
    const std::size_t end = entry.find(')', start);
    const std::string inside = end == std::string::npos ? entry : entry.substr(start, end - start);
    return inside.substr(0, inside.find('\0'));
}

std::string withoutArguments(const std::string& text) {
    const std::size_t dot = text.find('.');
    return text.substr(0, text.find(' ', dot == std::string::npos ? 0 : dot));
}

/// The first of the system's folders that holds the file.
std::optional<std::string> searched(const std::string& name, const FuncMod& funcMod) {
    const std::string sysDir = funcMod.getSysDir();
    // "...\system32\" without its last three characters is the old system folder.
    const std::array<std::string, 3> places{
        sysDir, funcMod.getWinDir(), sysDir.substr(0, sysDir.size() < 3 ? 0 : sysDir.size() - 3) + "\\"};
    for (const std::string& place : places) {
        if (funcMod.fileThere(place + name)) {
            return place + name;
        }
    }
    return std::nullopt;
}

} // namespace

CutPath cutToFilePath(const TextRules& texts, const std::string& entry, const FuncMod& funcMod) {
    const std::string text = withoutArguments(insideParentheses(entry));
    if (texts.first(text, '\\') == std::string::npos) {
        return {text, searched(text, funcMod)};
    }
    std::string path =
        texts.replaceAll(replaceExact(text, "%systemroot%", funcMod.getWinDir()), "\\\\", "\\");
    if (path.find('.') == std::string::npos) {
        path += ".exe";
    }
    return {text, path};
}

} // namespace tarvelon
