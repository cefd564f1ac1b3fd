#include "demands.h"

#include "hand.h"
#include "tools/driver/seen_windows.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

namespace e2e {

namespace {

bool isBox(HWND window) {
    return classOf(window) == "#32770";
}

/// Empty when a box stands in front and alone can be used, or, without one, every form can be used.
std::string whatCannotBeReached(const Program& program) {
    std::vector<HWND> windows = program.windows();
    std::erase_if(windows, [](HWND window) { return classOf(window) != "TarvelonForm" && !isBox(window); });
    if (windows.empty()) {
        return "there is no window";
    }
    const bool boxIsOpen = std::ranges::any_of(windows, isBox);
    for (HWND window : windows) {
        const bool meant = !boxIsOpen || window == windows.front();
        if ((IsWindowEnabled(window) != 0) != meant) {
            return "\"" + shownText(window) + "\" is " + (meant ? "disabled" : "enabled beside a box");
        }
    }
    return boxIsOpen && !isBox(windows.front()) ? "a box stands behind other windows" : "";
}

bool takesKeys(HWND control) {
    return (GetWindowLongA(control, GWL_STYLE) & (WS_TABSTOP | WS_DISABLED)) == WS_TABSTOP;
}

/// Empty when the keyboard is on a visible and enabled control of the active window, or that has none.
std::string whatIsWrongWithFocus(const Program& program) {
    GUITHREADINFO keyboard{};
    keyboard.cbSize = sizeof keyboard;
    DWORD owner = 0;
    const DWORD thread = GetWindowThreadProcessId(GetForegroundWindow(), &owner);
    HWND const active =
        owner == program.id() && GetGUIThreadInfo(thread, &keyboard) != 0 ? keyboard.hwndActive : nullptr;
    if (active == nullptr || IsIconic(active) != 0 || isSystemDialog(active)) {
        return "";
    }
    HWND const focus = keyboard.hwndFocus;
    const std::string where = "the focus is on \"" + shownText(focus) + "\", which ";
    if (focus == nullptr || GetAncestor(focus, GA_ROOT) != active) {
        return where + "is outside of \"" + shownText(active) + "\"";
    }
    if (IsWindowVisible(focus) == 0) {
        return where + "cannot be seen";
    }
    for (HWND part = focus; part != nullptr; part = GetAncestor(part, GA_PARENT)) {
        if (IsWindowEnabled(part) == 0) {
            return where + "is disabled, or stands on what is";
        }
    }
    const bool somethingTakesKeys = std::ranges::any_of(visibleChildren(active), takesKeys);
    return somethingTakesKeys && (focus == active || classOf(focus) == "Static") ? where + "takes no keys"
                                                                                 : "";
}

/// Every line but comments has the mark, the last is whole, and so many sections begin.
void demandLines(const std::string& name, const std::string& text, const std::string& mark, int sections) {
    std::size_t from = 0;
    for (std::size_t end = 0; (end = text.find("\r\n", from)) != std::string::npos; from = end + 2) {
        const std::string line = text.substr(from, end - from);
        const bool isHead = line.starts_with("[") && line.ends_with("]");
        sections -= isHead ? 1 : 0;
        if (!isHead && !line.empty() && !line.starts_with("//") && line.find(mark) == std::string::npos) {
            throw NotSeen(name + " holds \"" + line + "\"");
        }
    }
    if (from != text.size() || sections != 0) {
        throw NotSeen(name + (sections != 0 ? " lacks sections" : " breaks off in its last line"));
    }
}

void demandOneFolder(const std::string& name, const std::string& text,
                     char (*folderOf)(const std::string& name)) {
    std::istringstream lines(text);
    std::set<char> folders;
    for (std::string line; std::getline(lines, line);) {
        if (line.find('=') != std::string::npos) {
            folders.insert(folderOf(line));
        }
    }
    if (folders.size() > 1) {
        throw NotSeen(name + " holds entries of several folders");
    }
}

} // namespace

void demandUsable(const Program& program) {
    for (HWND window : program.windows()) {
        if (SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, answerTime, nullptr) == 0 &&
            IsWindow(window) != 0 && !program.ends(Milliseconds(0))) {
            throw NotSeen("no answer from \"" + shownText(window) + "\"");
        }
    }
    for (const auto whatIsWrong : {whatCannotBeReached, whatIsWrongWithFocus}) {
        std::string wrong;
        const auto right = [&] {
            wrong = whatIsWrong(program);
            return wrong.empty() || program.ends(Milliseconds(0));
        };
        if (!comesTrue(right, Milliseconds(answerTime))) {
            throw NotSeen(wrong);
        }
    }
}

void demandWholeFiles(const ProgramFolder& folder, char (*folderOf)(const std::string& name)) {
    for (const std::string& name : namesIn(folder.path() + "Data\\")) {
        const std::string text = folder.data(name).value_or("");
        if (name == "Tarvelon.dat") {
            demandLines(name, text, "=", 21);
        } else if (name == "Registry.dat") {
            demandLines(name, text, "=", 17);
        } else if (name != "Log") {
            demandLines(name, text, "*E", 9);
            if (std::isdigit(static_cast<unsigned char>(name[0])) != 0) {
                demandOneFolder(name, text, folderOf); // The system's own may hold names of the others.
            }
        }
    }
}

} // namespace e2e
