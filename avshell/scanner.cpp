#include "avshell/scanner.h"

#include "core/failure.h"
#include "core/globals.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "ui/mform1_screen.h"

namespace tarvelon {

bool ScannerCommand::isSet() const {
    return !trim(exe).empty();
}

std::string ScannerCommand::line(const std::string& files) const {
    return exe + " " + args + " " + files;
}

std::string Scanner::toShortPath(const std::string& path) const {
    // The short name comes with a zero behind it into a buffer of blanks, so the first blank tells its
    // length. A name that holds a blank itself is cut there.
    std::string buffer(1024, ' ');
    platform_.files.getShortPathName(path, buffer.data(), static_cast<std::uint32_t>(buffer.size()));
    const std::size_t blank = buffer.find(' ');
    if (blank == std::string::npos || blank == 0) {
        return {};
    }
    return trim(buffer.substr(0, blank - 1));
}

void Scanner::runScanner(const std::string& commandLine) const {
    const WindowStyle style =
        mForm1_.avfocus.value() == 1 ? WindowStyle::NormalFocus : WindowStyle::MinimizedFocus;
    // Without a scanner's name the first file would stand in its place, and the suspect itself be started.
    const bool namesNoScanner = commandLine.starts_with(' ');
    if (namesNoScanner || !platform_.processes.start(commandLine, style)) {
        throw Failure("The scanner cannot be started:\r\n" + commandLine);
    }
}

std::string Scanner::quoted(const std::string& name) const {
    return globals_.settings.quoteChar + name + globals_.settings.quoteChar;
}

std::string Scanner::shortened(const std::string& name) const {
    return globals_.settings.shortPaths ? toShortPath(name) : name;
}

/// One name as it stands in a list.
std::string Scanner::item(const std::string& name) const {
    return quoted(shortened(name)) + " ";
}

bool Scanner::batch(int first, int last, const std::function<std::string(int)>& row,
                    const std::function<bool(const std::string&)>& flush) const {
    std::string list;
    int rows = 0;
    for (int index = first; index <= last; ++index) {
        ++rows;
        const std::string name = row(index);
        if (!trim(name).empty()) {
            list += item(name);
        }
        if (index >= last || rows >= globals_.settings.passCount) {
            if (!flush(list)) {
                return false;
            }
            list.clear();
            rows = 0;
        }
    }
    return true;
}

void Scanner::startBoth(const ScannerCommand& first, const ScannerCommand& second,
                        const std::string& list) const {
    if (list.empty()) {
        return;
    }
    runScanner(first.line(list));
    if (second.isSet()) {
        runScanner(second.line(list));
    }
}

bool Scanner::test(const std::string& exe) const {
    if (!platform_.files.open(exe, OpenMode::Read)) {
        platform_.dialogs.message({.text = "You must choose a virus scanner before you proceed!"});
        return false;
    }
    platform_.dialogs.message(
        {.text =
             "Tarvelon will now attempt to scan two files. If the Virus-Scanner you selected scans both "
             "files, then "
             "it is fully compatible with Tarvelon! If not, make sure you chose the correct EXE file in your "
             "anti-virus folder."});
    runScanner(exe + " " + quoted(shortened(globals_.app.settFile)) + " " +
               quoted(shortened(globals_.app.intFile)));
    return true;
}

} // namespace tarvelon
