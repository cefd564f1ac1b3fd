#include "driver.h"
#include "seen_windows.h"

#include <algorithm>

namespace e2e {

namespace {

constexpr DWORD pollInterval = 20; // milliseconds

/// The list that hangs open under the drop-down list, if it does: a window of its own.
HWND openList(HWND dropDown) {
    const DWORD thread = GetWindowThreadProcessId(dropDown, nullptr);
    for (HWND list = nullptr; (list = FindWindowExA(nullptr, list, "ComboLBox", nullptr)) != nullptr;) {
        if (IsWindowVisible(list) != 0 && GetWindowThreadProcessId(list, nullptr) == thread) {
            return list;
        }
    }
    return nullptr;
}

/// The system lets only the program in front name another one; whoever shares its input passes for it.
void toFront(HWND window) {
    if (SetForegroundWindow(window) != 0 && GetForegroundWindow() == window) {
        return;
    }
    const DWORD front = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
    AttachThreadInput(GetCurrentThreadId(), front, TRUE);
    SetForegroundWindow(window);
    AttachThreadInput(GetCurrentThreadId(), front, FALSE);
}

} // namespace

bool comesTrue(const std::function<bool()>& holds, Milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        Sleep(pollInterval);
    }
    return true;
}

void sendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void sendMouse(DWORD event) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = event;
    SendInput(1, &input, sizeof input);
}

void pressKey(WORD key) {
    sendKey(key, 0);
    Sleep(handTime);
    sendKey(key, KEYEVENTF_KEYUP);
}

void clickAt(HWND control, const RECT& place, const std::function<bool()>& ready) {
    HWND const window = GetAncestor(control, GA_ROOT);
    const POINT centre{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    const auto isOpen = [&] {
        SetCursorPos(centre.x, centre.y);
        return ready() && GetAncestor(WindowFromPoint(centre), GA_ROOT) == window;
    };
    const auto staysOpen = [&] {
        const bool open = isOpen();
        Sleep(handTime);
        return open && isOpen();
    };
    if (!comesTrue(staysOpen)) {
        HWND const above = GetAncestor(WindowFromPoint(centre), GA_ROOT);
        throw NotSeen("\"" + textOf(control) + "\" is covered by the " + classOf(above) + " \"" +
                      textOf(above) + "\"");
    }
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    Sleep(handTime);
    sendMouse(MOUSEEVENTF_LEFTUP);
}

void clickOn(HWND control, const RECT& place) {
    HWND const window = GetAncestor(control, GA_ROOT);
    toFront(window);
    clickAt(control, place, [window] { return GetForegroundWindow() == window; });
}

std::string Form::caption() const {
    return shownText(window_);
}

bool Form::isVisible() const {
    return IsWindowVisible(window_) != 0;
}

HWND Form::await(const char* kind) const {
    std::vector<HWND> all;
    if (!comesTrue([&] { return !(all = childrenOfClass(window_, kind)).empty(); })) {
        throw NotSeen("no " + std::string(kind) + " on " + describe());
    }
    return all.front();
}

void Form::fill(std::size_t field, const std::string& text) const {
    std::vector<HWND> edits;
    if (!comesTrue([&] { return (edits = childrenOfClass(window_, "Edit")).size() > field; })) {
        throw NotSeen("no text field to write \"" + text + "\" into on " + describe());
    }
    send(edits[field], WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
}

HWND Form::tree() const {
    return await("SysTreeView32");
}

std::string Form::beside(const std::string& label) const {
    const std::vector<HWND> all = visibleChildren(window_);
    const auto named =
        std::ranges::find_if(all, [&](HWND child) { return withoutMarks(shownText(child)) == label; });
    if (named == all.end()) {
        throw NotSeen("no \"" + label + "\" on " + describe());
    }
    const RECT from = placeOf(*named);
    HWND nearest = nullptr;
    for (HWND child : all) {
        const RECT place = placeOf(child);
        const long middle = (place.top + place.bottom) / 2;
        const bool behind = middle >= from.top && middle < from.bottom && place.left > from.left;
        if (behind && (nearest == nullptr || place.left < placeOf(nearest).left)) {
            nearest = child;
        }
    }
    return nearest == nullptr ? std::string() : textOf(nearest);
}

std::vector<std::string> Form::rows() const {
    await("ListBox");
    std::vector<std::string> all;
    for (HWND list : childrenOfClass(window_, "ListBox")) {
        const std::vector<std::string> rows = rowsOf(list);
        all.insert(all.end(), rows.begin(), rows.end());
    }
    return all;
}

void Form::choose(const std::string& text) const {
    HWND const box = await("ComboBox");
    clickOn(box, placeOf(box));
    HWND list = nullptr;
    std::vector<std::string> rows;
    const auto hasRow = [&] {
        list = openList(box);
        rows = rowsOf(list);
        return std::ranges::count(rows, text) > 0;
    };
    if (!comesTrue(hasRow)) {
        throw NotSeen("no row \"" + text + "\" in the drop-down list of " + describe());
    }
    // Coming to the front would close the list.
    clickAt(list, placeOfRow(list, std::ranges::find(rows, text) - rows.begin()), [] { return true; });
    if (!comesTrue([&] { return IsWindowVisible(list) == 0; })) {
        throw NotSeen("the drop-down list stays open on " + describe());
    }
}

void Form::close() const {
    PostMessageA(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void Form::bringToFront() const {
    toFront(window_);
    if (!comesTrue([this] { return GetForegroundWindow() == window_; })) {
        throw NotSeen("another window stays in front of " + describe());
    }
}

std::string Form::describe() const {
    std::string texts = "window \"" + caption() + "\":";
    for (HWND child : visibleChildren(window_)) {
        const std::string text = shownText(child);
        texts += text.empty() ? "" : " [" + text + "]";
    }
    return texts;
}

} // namespace e2e
