// The program under test as a process, and the windows it has.

#include "driver.h"
#include "seen_windows.h"

#include <algorithm>

#include <tlhelp32.h>

namespace e2e {

namespace {

/// Every line break as a single "\n", whichever way the system stores it.
std::string plainBreaks(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        plain += text[i] == '\r' ? '\n' : text[i];
        i += text.compare(i, 2, "\r\n") == 0 ? 1 : 0;
    }
    return plain;
}

/// As the user reads it.
std::string readText(HWND control) {
    return plainBreaks(withoutMarks(shownText(control)));
}

bool isBox(HWND window) {
    return classOf(window) == "#32770";
}

/// What the system's own boxes call the button in the user's language.
std::string inTheSystemsWords(HWND box, const std::string& text) {
    constexpr std::pair<const char*, int> numbers[] = {
        {"OK", IDOK}, {"Cancel", IDCANCEL}, {"Yes", IDYES}, {"No", IDNO}, {"Open", IDOK}};
    const auto named = std::ranges::find(numbers, text, [](const auto& entry) { return entry.first; });
    if (!isBox(box) || named == std::end(numbers)) {
        return text;
    }
    HWND button = GetDlgItem(box, named->second);
    if (button == nullptr && named->second == IDOK) {
        button = GetDlgItem(box, IDCANCEL); // An only button may be numbered so that Esc presses it.
    }
    return button == nullptr ? text : readText(button);
}

/// Waits until a click on a row cannot pass for the second half of a double click.
void awaitSingleClick() {
    static DWORD last = 0;
    comesTrue([] { return GetTickCount() >= last + GetDoubleClickTime(); });
    last = GetTickCount() + 2 * handTime;
}

} // namespace

Program::Program(const std::string& file, const std::string& arguments) {
    std::string commandLine = "\"" + file + "\"" + (arguments.empty() ? "" : " " + arguments);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (CreateProcessW(wide(file).c_str(), wide(commandLine).data(), nullptr, nullptr, FALSE, 0, nullptr,
                       nullptr, &start, &process_) == 0) {
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
    MODULEENTRY32W module{};
    module.dwSize = sizeof module;
    for (BOOL more = Module32FirstW(list, &module); more != FALSE; more = Module32NextW(list, &module)) {
        files.push_back(narrow(module.szExePath));
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
        [](HWND window, LPARAM argument) WINAPI -> BOOL {
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

Form Program::form(const std::string& captionPart, Milliseconds limit) const {
    std::optional<HWND> window;
    if (!comesTrue([&] { return (window = formNow(captionPart)).has_value(); }, limit)) {
        throw NotSeen("no window \"" + captionPart + "\"; " + describe());
    }
    return Form(*window);
}

std::optional<Program::Spot> Program::find(const std::string& text, bool answering) const {
    for (HWND window : windows()) {
        std::vector<HWND> all = visibleChildren(window);
        if (answering) {
            std::erase_if(
                all, [&](HWND part) { return IsWindowEnabled(window) == 0 || IsWindowEnabled(part) == 0; });
        } else {
            all.push_back(window);
        }
        const auto named = std::ranges::find(all, inTheSystemsWords(window, text), readText);
        if (named != all.end()) {
            return Spot{*named, std::nullopt};
        }
        for (HWND part : all) {
            const std::vector<std::string> rows =
                isOfClass(part, "ListBox") ? rowsOf(part) : std::vector<std::string>();
            const auto row = std::ranges::find(rows, text);
            if (row != rows.end()) {
                return Spot{part, row - rows.begin()};
            }
        }
    }
    return std::nullopt;
}

bool Program::shows(const std::string& text) const {
    return find(text, false).has_value();
}

void Program::awaitText(const std::string& text) const {
    if (!comesTrue([&] { return shows(text); })) {
        throw NotSeen("no \"" + text + "\"; " + describe());
    }
}

void Program::press(const std::string& text) const {
    WaitForInputIdle(process_.hProcess, answerTime);
    std::optional<Spot> spot;
    if (!comesTrue([&] { return (spot = find(text, true)).has_value(); })) {
        throw NotSeen("nothing to press with \"" + text + "\"; " + describe());
    }
    HWND const window = GetAncestor(spot->control, GA_ROOT);
    if (IsIconic(window) != 0) {
        send(window, WM_SYSCOMMAND, SC_RESTORE, 0);
    }
    if (spot->row) {
        awaitSingleClick();
        clickOn(spot->control, placeOfRow(spot->control, *spot->row));
        return;
    }
    clickOn(spot->control, placeOf(spot->control));
    if (isBox(window) && !comesTrue([&] { return IsWindowVisible(window) == 0; })) {
        throw NotSeen("\"" + text + "\" closes no box; " + describe());
    }
}

void Program::play(const std::vector<Step>& steps) const {
    for (const Step& step : steps) {
        if (!step.press.empty()) {
            press(step.press);
        }
        if (!step.shows.empty()) {
            awaitText(step.shows);
        }
    }
}

Box Program::box(Milliseconds limit) const {
    std::optional<Box> box;
    if (!comesTrue([&] { return (box = boxNow()).has_value(); }, limit)) {
        throw NotSeen("no message box; " + describe());
    }
    return *box;
}

std::optional<Box> Program::boxNow() const {
    const std::vector<HWND> all = windows();
    const auto found = std::ranges::find_if(all, isBox);
    if (found == all.end()) {
        return std::nullopt;
    }
    Box box{*found, textOf(*found), "", {}};
    for (HWND child : visibleChildren(*found)) {
        const std::string text = readText(child);
        if (classOf(child) == "Button") {
            box.buttons.push_back(text);
        } else if (!text.empty()) {
            box.text = text;
        }
    }
    return box;
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
