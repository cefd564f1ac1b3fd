// The program under test as a process, and the windows it has.

#include "driver.h"
#include "seen_windows.h"

#include <algorithm>

#include <tlhelp32.h>

namespace e2e {

Program::Program(const std::string& file, const std::string& arguments) {
    std::string commandLine = "\"" + file + "\"" + (arguments.empty() ? "" : " " + arguments);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    if (CreateProcessA(file.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &process_) == 0) {
        throw NotSeen(file + " cannot be started");
    }
}

Program::~Program() {
    kill();
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

std::vector<std::string> Program::modules() const {
    const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process_.dwProcessId);
    std::vector<std::string> files;
    MODULEENTRY32 module{};
    module.dwSize = sizeof module;
    for (BOOL more = Module32First(list, &module); more != FALSE; more = Module32Next(list, &module)) {
        files.push_back(module.szExePath);
    }
    CloseHandle(list);
    return files;
}

std::vector<HWND> Program::windows() const {
    struct Search {
        DWORD process;
        std::vector<HWND> found;
    } search{process_.dwProcessId, {}};
    EnumWindows(
        [](HWND window, LPARAM argument) {
            auto& wanted = *reinterpret_cast<Search*>(argument);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            if (owner == wanted.process && IsWindowVisible(window) != 0) {
                wanted.found.push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::optional<HWND> Program::formNow(const std::string& captionPart) const {
    for (HWND window : windows()) {
        if (classOf(window) == "TarvelonForm" && shownText(window).find(captionPart) != std::string::npos) {
            return window;
        }
    }
    return std::nullopt;
}

bool Program::hasForm(const std::string& captionPart) const {
    return formNow(captionPart).has_value();
}

Form Program::form(const std::string& captionPart) const {
    // A window shows before its program is ready for a click.
    WaitForInputIdle(process_.hProcess, answerTime);
    std::optional<HWND> window;
    if (!comesTrue([&] { return (window = formNow(captionPart)).has_value(); })) {
        throw NotSeen("no window \"" + captionPart + "\"; " + describe());
    }
    if (IsIconic(*window) != 0) {
        send(*window, WM_SYSCOMMAND, SC_RESTORE, 0);
    }
    return Form(*window);
}

Box Program::box() const {
    std::optional<Box> box;
    if (!comesTrue([&] { return (box = boxNow()).has_value(); })) {
        throw NotSeen("no message box; " + describe());
    }
    return *box;
}

std::optional<Box> Program::boxNow() const {
    const std::vector<HWND> all = windows();
    const auto found =
        std::find_if(all.begin(), all.end(), [](HWND window) { return classOf(window) == "#32770"; });
    if (found == all.end()) {
        return std::nullopt;
    }
    Box box{*found, textOf(*found), "", {}};
    for (HWND child : visibleChildren(*found)) {
        const std::string text = textOf(child);
        if (classOf(child) == "Button") {
            box.buttons.push_back(withoutMarks(text));
        } else if (!text.empty()) {
            box.text = plainBreaks(text);
        }
    }
    return box;
}

void Program::answer(const std::string& text, const std::string& button, const std::string& title) const {
    const Box shown = box();
    if (shown.text != text || shown.title != title) {
        throw NotSeen("\"" + shown.title + ": " + shown.text + "\" in place of \"" + title + ": " + text +
                      "\"");
    }
    shown.press(button);
}

void Program::kill() const {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, INFINITE);
}

bool Program::ends(Milliseconds limit) const {
    return WaitForSingleObject(process_.hProcess, static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

DWORD Program::exitCode() const {
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

std::string Program::describe() const {
    if (ends(Milliseconds(0))) {
        return "the program has ended";
    }
    std::string all = "on the screen:";
    for (HWND window : windows()) {
        all += " " + Form(window).describe();
    }
    return all;
}

} // namespace e2e
