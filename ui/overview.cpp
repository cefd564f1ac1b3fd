#include "ui/overview.h"

#include "avshell/scanner_command.h"
#include "core/failure.h"
#include "core/file_text.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "logging/report_name.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "ui/short_cut.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvelon {

namespace {

std::size_t occurrences(std::string_view text, std::string_view wanted) {
    std::size_t count = 0;
    for (std::size_t hit = text.find(wanted); hit != std::string_view::npos;
         hit = text.find(wanted, hit + wanted.size())) {
        ++count;
    }
    return count;
}

/// "1 file", "2,431 files".
std::string counted(std::size_t number, const std::string& noun) {
    std::string digits = std::to_string(number);
    for (std::size_t i = digits.size(); i > 3; i -= 3) {
        digits.insert(i - 3, ",");
    }
    return digits + " " + noun + (number == 1 ? "" : "s");
}

std::string listed(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items) {
        text += (text.empty() ? "" : ", ") + item;
    }
    return text;
}

} // namespace

Overview::Overview(const Services& services, const Checksum& checksum)
    : Services(services)
    , checksum_(checksum) {}

Standing Overview::systemFiles() const {
    const auto file = platform.files.open(checksum_.getIntFile(), OpenMode::Read);
    const auto text = file ? readAll(*file) : std::nullopt;
    if (!text) {
        return {Tone::Attention, "No baseline yet: the first full scan has not been made"};
    }
    const std::size_t ends = occurrences(*text, "\r\nNULL*E\r\n");
    const std::size_t all = occurrences(*text, "*E\r\n") - ends;
    const std::size_t unknown = occurrences(*text, "=NULL*E\r\n");
    if (all == unknown) {
        return {Tone::Attention, "The baseline is empty: everything would count as new"};
    }
    const std::string day = platform.clock.dayOf(file->lastWrite().value_or(0));
    std::string words = "Baseline of " + day + ", " + counted(all, "file");
    if (unknown > 0) {
        return {Tone::Attention, words + ", " + std::to_string(unknown) + " of them never checked"};
    }
    return {Tone::Good, words};
}

Standing Overview::folders() const {
    std::size_t watched = 0;
    std::vector<std::string> without;
    for (int slot = 1; slot <= folderSlots; ++slot) {
        const std::string path = trim(settings.ofSlot(slot, "path"));
        if (path.empty() || path == "NULL") {
            continue;
        }
        ++watched;
        if (!funcMod.fileThere(checksum_.getCustomDat(slot))) {
            without.push_back(path.back() == '\\' ? path.substr(0, path.size() - 1) : path);
        }
    }
    if (watched == 0) {
        return {Tone::Quiet, "None added: only the system folder is watched"};
    }
    if (!without.empty()) {
        return {Tone::Attention, "No baseline yet: " + listed(without)};
    }
    return {Tone::Good, counted(watched, "folder") + " added, each with a baseline"};
}

Standing Overview::scanner() const {
    const std::string exe = trim(ScannerPair::stored(settings).first.exe);
    if (!exe.empty() && funcMod.fileThere(exe)) {
        return {Tone::Good, exe};
    }
    // What stands in the field of a scanner that was never named is no path.
    const bool named = exe.find('\\') != std::string::npos;
    return {Tone::Attention,
            named ? "Missing: " + exe : "None chosen: what has changed is only written to a report"};
}

Standing Overview::autoLoad() const {
    if (!funcMod.fileThere(shortCut::autoLoadShortcut(platform, globals.texts))) {
        return {Tone::Attention, "Off: nothing is checked when you log on"};
    }
    std::vector<std::string> what = typesAtLogOn();
    if (const int folders = foldersAtLogOn(); folders > 0) {
        what.push_back(counted(static_cast<std::size_t>(folders), "folder"));
    }
    if (what.empty()) {
        return {Tone::Attention, "On, but nothing is ticked: nothing will be checked"};
    }
    return {Tone::Good, "On: " + listed(what)};
}

std::vector<std::string> Overview::typesAtLogOn() const {
    constexpr std::array names{"DLL", "DRV", "SYS", "OCX", "EXE", "SCR and PIF"};
    const std::vector<std::string> ticks = split(settings.getSetting("GETSETT"), ',');
    std::vector<std::string> types;
    for (std::size_t i = 0; i < names.size() && i < ticks.size(); ++i) {
        if (ticks[i] == "1") {
            types.emplace_back(names[i]);
        }
    }
    return types;
}

int Overview::foldersAtLogOn() const {
    int count = 0;
    for (int slot = 1; slot <= folderSlots; ++slot) {
        const std::string types = settings.ofSlot(slot, "args");
        count += !types.empty() && types.back() == '1' ? 1 : 0;
    }
    return count;
}

Standing Overview::reports() const {
    const std::string folder = globals.app.logFolder();
    Files& files = platform.files;
    std::vector<std::string> names;
    for (std::string name = files.firstName(folder); !name.empty(); name = files.nextName()) {
        if (name.find('(') != std::string::npos && globals.texts.equal(lastCharacters(name, 5), ").LOG")) {
            names.push_back(name);
        }
    }
    std::string last;
    std::uint64_t lastTime = 0;
    for (const std::string& name : names) {
        const auto file = files.open(folder + name, OpenMode::Read);
        const std::uint64_t time = file ? file->lastWrite().value_or(0) : 0;
        if (time > lastTime) {
            lastTime = time;
            last = name;
        }
    }
    if (last.empty()) {
        return {Tone::Quiet, "None yet"};
    }
    const std::size_t bracket = last.find('(');
    return {Tone::Good, "The last of " + counted(names.size(), "report") + ": " +
                            reportDate(last.substr(0, bracket)) + ", " +
                            reportTimeShown(globals.texts, getBetween(globals.texts, last, 1, "(", ")"))};
}

} // namespace tarvelon
