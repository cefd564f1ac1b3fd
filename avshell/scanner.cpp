#include "avshell/scanner.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/other_page.h"
#include "platform/codepage.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "ui/controls/controls.h"

namespace tarvelon {

std::string couldNotBeExecuted(const std::string& exe) {
    return "Your Anti-Virus program could not be executed!!!\rPlease verify the path of the software:\r" +
           exe;
}

std::string Scanner::toShortPath(const std::string& path) const {
    // The short name comes with a zero behind it into a buffer of blanks, so the first blank tells its
    // length. A name that holds a blank itself is cut there.
    std::string buffer(1024, ' ');
    platform.files.getShortPathName(path, buffer.data(), static_cast<std::uint32_t>(buffer.size()));
    const std::size_t blank = buffer.find(' ');
    if (blank == std::string::npos || blank == 0) {
        return {};
    }
    return trim(buffer.substr(0, blank - 1));
}

void Scanner::runScanner(const std::string& exe, const std::string& arguments) const {
    const WindowStyle style = avfocus_.value() == 1 ? WindowStyle::NormalFocus : WindowStyle::MinimizedFocus;
    // Without a scanner's name the first file would stand in its place, and the suspect itself be started.
    const bool namesNoScanner = exe.empty() || exe.starts_with(' ');
    if (namesNoScanner || !platform.processes.start(exe, arguments, style)) {
        throw Failure("The scanner cannot be started:\r\n" + exe);
    }
}

std::string Scanner::quoted(const std::string& name) const {
    return globals.settings.quoteChar + name + globals.settings.quoteChar;
}

std::string Scanner::shortened(const std::string& name) const {
    return globals.settings.shortPaths ? toShortPath(name) : name;
}

/// One name as it stands in a list.
std::string Scanner::item(const std::string& name) const {
    return quoted(shortened(name)) + " ";
}

bool Scanner::batch(int first, int last, const std::function<std::string(int)>& row,
                    const std::function<bool(const std::vector<std::string>&)>& flush) const {
    std::vector<std::string> items;
    int rows = 0;
    for (int index = first; index <= last; ++index) {
        ++rows;
        const std::string name = row(index);
        if (!trim(name).empty()) {
            items.push_back(item(name));
        }
        if (index >= last || rows >= globals.settings.passCount) {
            if (!flush(items)) {
                return false;
            }
            items.clear();
            rows = 0;
        }
    }
    return true;
}

bool Scanner::opensForAnyProgram(const std::string& path) const {
    constexpr std::size_t pathRoom = 260;
    const auto units = platform.codePage.toUtf16(path);
    return units && units->size() < pathRoom && isInSystemPage(platform, path);
}

std::string Scanner::handedOver(const std::string& item) const {
    const std::string path = globals.texts.replaceAll(trim(item), globals.settings.quoteChar, "");
    if (path.empty() || opensForAnyProgram(path)) {
        return item;
    }
    std::string buffer(1024, '\0');
    const auto room = static_cast<std::uint32_t>(buffer.size());
    const std::uint32_t length = platform.files.getShortPathName(path, buffer.data(), room);
    buffer.resize(length < room ? length : 0);
    return opensForAnyProgram(buffer) && !buffer.empty() ? replaceExact(item, path, buffer) : item;
}

std::vector<std::string> Scanner::lists(const ScannerPair& scanners,
                                        const std::vector<std::string>& items) const {
    std::vector<std::string> handed;
    handed.reserve(items.size());
    for (const std::string& item : items) {
        handed.push_back(handedOver(item));
    }
    return scanners.lists(handed);
}

void Scanner::startBoth(const ScannerPair& scanners, const std::vector<std::string>& items) const {
    if (items.empty()) {
        return;
    }
    for (const std::string& list : lists(scanners, items)) {
        runScanner(scanners.first.exe, scanners.first.arguments(list));
        if (scanners.second.isSet()) {
            runScanner(scanners.second.exe, scanners.second.arguments(list));
        }
    }
}

bool Scanner::test(const std::string& exe) const {
    if (!platform.files.open(exe, OpenMode::Read)) {
        platform.dialogs.message({.text = "You must choose a virus scanner before you proceed!"});
        return false;
    }
    platform.dialogs.message(
        {.text =
             "Tarvelon will now attempt to scan two files. If the Virus-Scanner you selected scans both "
             "files, then "
             "it is fully compatible with Tarvelon! If not, make sure you chose the correct EXE file in your "
             "anti-virus folder."});
    runScanner(exe, quoted(shortened(globals.app.settFile)) + " " + quoted(shortened(globals.app.intFile)));
    return true;
}

} // namespace tarvelon
