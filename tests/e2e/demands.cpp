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

void demandWholeFiles(const ProgramFolder& folder) {
    for (const std::string& name : namesIn(folder.path() + "Data\\")) {
        const bool isSettings = name == "Tarvelon.dat";
        const bool isBaseline = !isSettings && name != "Registry.dat";
        int sections = name == "Log" ? 0 : isSettings ? 21 : isBaseline ? 9 : 17;
        std::set<bool> folders;
        std::istringstream lines(folder.data(name).value_or(""));
        for (std::string line; std::getline(lines, line);) {
            const bool isHead = line.starts_with("[");
            const bool isEntry = !isHead && !line.starts_with("//") && line != "\r";
            sections -= isHead ? 1 : 0;
            if (!line.ends_with('\r') ||
                (isEntry && line.find(isBaseline ? "*E" : "=") == std::string::npos)) {
                throw NotSeen(name + " holds \"" + line + "\"");
            }
            // The program lies in each of them.
            if (isEntry && line.find('=') != std::string::npos && !line.starts_with("TarvelonLow")) {
                folders.insert(std::isdigit(static_cast<unsigned char>(line[0])) != 0);
            }
        }
        const bool isOfAnAddedFolder = std::isdigit(static_cast<unsigned char>(name[0])) != 0;
        if (sections != 0 || (isOfAnAddedFolder && folders.size() > 1)) {
            throw NotSeen(name + (sections != 0 ? " lacks sections" : " holds entries of two folders"));
        }
    }
}

} // namespace e2e
