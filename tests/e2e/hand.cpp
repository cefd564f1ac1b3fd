#include "hand.h"

#include "tools/driver/seen_windows.h"

#include <algorithm>
#include <array>
#include <cstdlib>

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

/// Texts of controls that may end the program.
constexpr std::array endings = {"Exit", "Cancel", "Close Integrity Check Window", "Scan Failing Files..."};

bool mayEnd(HWND control) {
    return std::ranges::count(endings, withoutMarks(shownText(control))) > 0 ||
           classOf(GetAncestor(control, GA_ROOT)) == "#32770";
}

LONG middleOfTitle(const RECT& window) {
    return window.top + GetSystemMetrics(SM_CYFIXEDFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2;
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

void press(const POINT& where, int times = 1) {
    SetCursorPos(where.x, where.y);
    Sleep(touch);
    for (; times > 0; --times) {
        sendMouse(MOUSEEVENTF_LEFTDOWN);
        Sleep(touch);
        sendMouse(MOUSEEVENTF_LEFTUP);
    }
}

std::string named(HWND control) {
    const std::string text = shownText(control);
    return (text.empty() ? classOf(control) : "\"" + text + "\"") +
           (IsWindowEnabled(control) != 0 ? "" : " (disabled)");
}

/// "Are you sure you want to close TITLE(NUMBER)", of a window that is not the program's.
bool asksToCloseAStranger(const Program& program, const Box& box) {
    const std::size_t number = box.text.rfind('(');
    if (!box.text.starts_with("Are you sure you want to close ") || number == std::string::npos) {
        return false;
    }
    DWORD owner = 0;
    GetWindowThreadProcessId(
        reinterpret_cast<HWND>(std::strtoull(box.text.c_str() + number + 1, nullptr, 10)), &owner);
    return owner != program.id();
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

Hand::~Hand() {
    for (const WORD key : held_) {
        sendKey(key, KEYEVENTF_KEYUP);
    }
}

std::string Hand::act(Chance& chance) {
    left_ = false;
    const std::vector<HWND> windows = program_.windows();
    if (windows.empty()) {
        Sleep(touch);
        return "waits for a window";
    }
    if (const auto box = program_.boxNow()) {
        left_ = true;
        if (isSystemDialog(box->window)) {
            return useSystemDialog(*box, chance);
        }
        if (asksToCloseAStranger(program_, *box)) {
            program_.press("No");
            return "leaves the window of another program open";
        }
    }
    HWND const front = GetForegroundWindow();
    if (std::ranges::count(windows, front) == 0 || IsIconic(front) != 0) {
        return comeBack(windows.front());
    }
    if (GetNextDlgTabItem(front, nullptr, FALSE) == nullptr) {
        Sleep(20 * touch); // There is nothing to do but to wait.
    }
    const std::uint32_t kind = chance.below(100);
    if (kind < 50) {
        return pressSomeKey(chance);
    }
    if (kind < 54) {
        return holdOrLetGo(chance.oneIn(2) ? VK_SHIFT : VK_SPACE);
    }
    return kind < 96 ? clickSomething(chance) : useFrame(chance);
}

std::string Hand::pressSomeKey(Chance& chance) {
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
    left_ = left_ || key.first == VK_MENU || key.key == VK_ESCAPE || mayEnd(focus.hwndFocus);
    for (const WORD part : {key.first, key.key}) {
        part == 0 ? void() : sendKey(part, 0);
    }
    Sleep(touch);
    for (const WORD part : {key.key, key.first}) {
        part == 0 ? void() : sendKey(part, KEYEVENTF_KEYUP);
    }
    return std::string(key.name) + " on " + named(focus.hwndFocus);
}

std::string Hand::holdOrLetGo(WORD key) {
    const bool down = held_.insert(key).second;
    if (!down) {
        held_.erase(key);
        left_ = true; // A press ends with its release.
    }
    sendKey(key, down ? 0 : KEYEVENTF_KEYUP);
    return std::string(down ? "holds " : "lets go ") + (key == VK_SHIFT ? "SHIFT" : "Space");
}

/// What of the window can be clicked: it is not covered by other windows, though it may be disabled.
std::vector<HWND> Hand::targets(HWND window) const {
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

/// What has been used less, out of a few; labels and what ends the program less often than the rest.
HWND Hand::chooseTarget(const std::vector<HWND>& all, Chance& chance) {
    const auto uses = [&](HWND control) {
        const bool dull = mayEnd(control) || (GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) == 0;
        return habits_[named(control)] + (dull ? 5 : 0);
    };
    HWND best = chance.of(all);
    for (int more = 0; more < 3; ++more) {
        HWND const other = chance.of(all);
        best = uses(other) < uses(best) ? other : best;
    }
    ++habits_[named(best)];
    return best;
}

std::string Hand::clickSomething(Chance& chance) {
    const std::vector<HWND> windows = program_.windows();
    if (windows.empty()) {
        return "finds nothing to click";
    }
    const std::vector<HWND> all = targets(chance.oneIn(6) ? chance.of(windows) : windows.front());
    HWND const control = chooseTarget(all, chance);
    left_ = left_ || mayEnd(control);
    const std::string name = named(control);
    const POINT where = pointIn(placeOf(control), chance);
    if (chance.oneIn(15)) {
        const POINT elsewhere = pointIn(placeOf(chance.of(all)), chance);
        SetCursorPos(where.x, where.y);
        sendMouse(MOUSEEVENTF_LEFTDOWN);
        Sleep(touch);
        SetCursorPos(elsewhere.x, elsewhere.y);
        Sleep(touch);
        sendMouse(MOUSEEVENTF_LEFTUP);
        return "drags from " + name;
    }
    const bool twice = chance.oneIn(8);
    press(where, twice ? 2 : 1);
    return (twice ? "double click on " : "click on ") + name;
}

/// The title bar, with its buttons.
std::string Hand::useFrame(Chance& chance) {
    HWND const window = GetForegroundWindow();
    const RECT place = placeOf(window);
    const int height = GetSystemMetrics(SM_CYCAPTION);
    const bool closes = chance.oneIn(6);
    POINT where{place.right - height / 2, middleOfTitle(place)};
    while (where.x > place.left + height &&
           send(window, WM_NCHITTEST, 0, MAKELPARAM(where.x, where.y)) != (closes ? HTCLOSE : HTMINBUTTON)) {
        where.x -= height;
    }
    left_ = left_ || closes;
    press(where);
    return (closes ? "close box of " : "minimise box or title bar of ") + named(window);
}

/// From another program, or from a window that is minimised.
std::string Hand::comeBack(HWND window) {
    const RECT place = placeOf(window);
    const bool iconic = IsIconic(window) != 0;
    press({(place.left + place.right) / 2, middleOfTitle(place)}, iconic ? 2 : 1);
    return (iconic ? "restores " : "comes back to ") + named(window);
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
