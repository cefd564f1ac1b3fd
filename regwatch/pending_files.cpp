#include "regwatch/pending_files.h"

#include "core/file_text.h"
#include "core/func_mod.h"
#include "core/other_page.h"
#include "core/text.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/registry.h"
#include "regwatch/reg_class.h"

#include <string_view>

namespace tarvelon {

namespace {

std::vector<std::string> splitAt(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    for (std::size_t from = 0;;) {
        const std::size_t hit = text.find(separator, from);
        parts.emplace_back(text.substr(from, hit - from));
        if (hit == std::string_view::npos) {
            return parts;
        }
        from = hit + separator.size();
    }
}

std::string wininitPath(const FuncMod& funcMod) {
    return funcMod.getWinDir() + "wininit.ini";
}

} // namespace

bool wininitThere(const FuncMod& funcMod) {
    return funcMod.fileThere(wininitPath(funcMod));
}

std::vector<PendingFile> wininitEntries(const TextRules& texts, Platform& platform, const FuncMod& funcMod) {
    std::vector<PendingFile> entries;
    const auto text = readWholeFile(platform.files, wininitPath(funcMod));
    if (!text) {
        return entries;
    }
    for (const std::string& written : splitAt(*text, lineEnd)) {
        const std::string line = fromSystemPage(platform, written);
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) {
            continue;
        }
        // "*!*" ends the right side, so a line that holds one itself is cut there.
        entries.push_back(
            {getBetween(texts, line + "*!*", 1, "=", "*!*"), texts.equal(line.substr(0, equals), "NUL")});
    }
    return entries;
}

std::vector<std::optional<std::string>> pendingRenames(const TextRules& texts, Platform& platform) {
    const std::string value =
        valueOf(platform.registry, Registry::localMachine,
                R"(System\CurrentControlSet\Control\Session Manager)", "PendingfileRenameOperations");
    const std::vector<std::string> elements = splitAt(value, R"(\??\)");
    std::vector<std::optional<std::string>> files;
    if (elements.size() == 1) {
        return files;
    }
    for (const std::string& element : elements) {
        if (trim(element).empty()) {
            files.emplace_back();
        } else {
            files.emplace_back(trim(getBetween(texts, "!" + element, 1, "!", std::string_view("\0", 1))));
        }
    }
    return files;
}

} // namespace tarvelon
