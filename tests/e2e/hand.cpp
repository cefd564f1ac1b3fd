#include "hand.h"

#include "tools/driver/seen_windows.h"

#include <algorithm>
#include <array>

namespace e2e {

namespace {

constexpr DWORD touch = 10; // milliseconds between the parts of a movement

struct Key {
    int weight;
    WORD first; ///< Held while the other is pressed; 0 for none.
    WORD key;
    const char* name;
};
constexpr Key keys[] = {{24, 0, VK_TAB, "Tab"},       {8, VK_SHIFT, VK_TAB, "Shift+Tab"},
                        {14, 0, VK_RETURN, "Enter"},  {14, 0, VK_SPACE, "Space"},
                        {8, 0, VK_DOWN, "Down"},      {4, 0, VK_UP, "Up"},
                        {4, 0, VK_RIGHT, "Right"},    {4, 0, VK_LEFT, "Left"},
                        {3, 0, VK_ESCAPE, "Esc"},     {2, 0, VK_DELETE, "Del"},
                        {2, 0, VK_END, "End"},        {2, 0, VK_PRIOR, "Page Up"},
                        {1, VK_MENU, VK_F4, "Alt+F4"}};

/// Labels, and what may end the program.
bool isDull(HWND control) {
    constexpr std::array endings = {"Exit", "Cancel", "Close Integrity Check Window",
                                    "Scan Failing Files..."};
    return (GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) == 0 ||
           std::ranges::count(endings, withoutMarks(shownText(control))) > 0;
}

/// Somewhere well inside.
POINT pointIn(const RECT& place, Chance& chance) {
    const auto between = [&](LONG from, LONG to) {
        const LONG quarter = (to - from) / 4;
        return from + quarter + static_cast<LONG>(chance.below(static_cast<std::size_t>(2 * quarter + 1)));
    };
    const LONG x = between(place.left, place.right);
    return {x, between(place.top, place.bottom)};
}

void press(const POINT& where) {
    SetCursorPos(where.x, where.y);
    Sleep(touch);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    Sleep(touch);
    sendMouse(MOUSEEVENTF_LEFTUP);
}

std::string named(HWND control) {
    const std::string text = shownText(control);
    return (text.empty() ? classOf(control) : "\"" + text + "\"") +
           (IsWindowEnabled(control) != 0 ? "" : " (disabled)");
}

std::string pressSomeKey(Chance& chance) {
    Key key{0, 0, static_cast<WORD>('A' + chance.below(26)), "a letter"};
    key.first = chance.oneIn(4) ? VK_MENU : 0;
    int place = static_cast<int>(chance.below(100));
    for (const Key& known : keys) {
        if (place >= 0 && (place -= known.weight) < 0) {
            key = known;
        }
    }
    GUITHREADINFO focus{};
    focus.cbSize = sizeof focus;
    GetGUIThreadInfo(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), &focus);
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        if (key.first != 0) {
            sendKey(key.first, flags);
        }
        sendKey(key.key, flags);
        Sleep(touch);
    }
    return std::string(key.name) + " on " + named(focus.hwndFocus);
}

/// What of the window can be clicked: it is not covered by other windows, though it may be disabled.
std::vector<HWND> targets(HWND window) {
    std::vector<HWND> all = visibleChildren(window);
    std::erase_if(all, [&](HWND child) {
        const RECT place = placeOf(child);
        const POINT centre{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
        return GetAncestor(WindowFromPoint(centre), GA_ROOT) != window;
    });
    if (all.empty()) {
        all.push_back(window);
    }
    return all;
}

std::string clickSomething(const std::vector<HWND>& windows, Chance& chance) {
    const std::vector<HWND> all = targets(chance.oneIn(6) ? chance.of(windows) : windows.front());
    HWND control = chance.of(all);
    for (int more = 0; more < 2 && isDull(control); ++more) {
        control = chance.of(all);
    }
    const POINT where = pointIn(placeOf(control), chance);
    const bool twice = chance.oneIn(8);
    const std::string done = (twice ? "double click on " : "click on ") + named(control);
    press(where);
    if (twice) {
        press(where);
    }
    return done;
}

/// From another program, or from a window that is minimised.
std::string comeBack(HWND window) {
    const std::string done = (IsIconic(window) != 0 ? "restores " : "comes back to ") + named(window);
    const RECT place = placeOf(window);
    const POINT where{(place.left + place.right) / 2,
                      place.top + GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
    for (int times = IsIconic(window) != 0 ? 2 : 1; times > 0; --times) {
        press(where);
    }
    return done;
}

} // namespace

Chance::Chance(std::uint32_t seed, std::uint32_t number) {
    std::seed_seq both{seed, number};
    draw_.seed(both);
}

bool isSystemDialog(HWND window) {
    const std::vector<HWND> children = visibleChildren(window);
    return classOf(window) == "#32770" && std::ranges::any_of(children, [](HWND child) {
               return classOf(child) != "Button" && classOf(child) != "Static";
           });
}

std::string Hand::act(Chance& chance) {
    const std::vector<HWND> windows = program_.windows();
    if (windows.empty()) {
        Sleep(touch);
        return "waits for a window";
    }
    if (const auto box = program_.boxNow()) {
        if (isSystemDialog(box->window)) {
            return useSystemDialog(*box, chance);
        }
        if (box->text.starts_with("Are you sure you want to close ")) {
            program_.press("No"); // It may be that of another program.
            return "leaves a window open";
        }
    }
    HWND const front = GetForegroundWindow();
    if (std::ranges::count(windows, front) == 0 || IsIconic(front) != 0) {
        return comeBack(windows.front());
    }
    if (GetNextDlgTabItem(front, nullptr, FALSE) == nullptr) {
        Sleep(20 * touch); // There is nothing to do but to wait.
    }
    return chance.oneIn(2) ? pressSomeKey(chance) : clickSomething(windows, chance);
}

/// One that asks for a file has a field for its name, one that asks for a folder a tree.
std::string Hand::useSystemDialog(const Box& box, Chance& chance) {
    const Form dialog(box.window);
    const bool asksForFile = !childrenOfClass(box.window, "Edit").empty();
    const bool goesOn = chance.oneIn(2);
    if (goesOn && asksForFile) {
        dialog.fill(0, scanner_);
    } else if (goesOn && chance.oneIn(2)) {
        pressKey(VK_DOWN);
    }
    pressKey(goesOn ? VK_RETURN : VK_ESCAPE);
    return std::string(goesOn ? "Enter" : "Esc") + " in \"" + box.title + "\"";
}

} // namespace e2e
