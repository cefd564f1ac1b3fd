#include "driver.h"
#include "seen_windows.h"

#include <algorithm>
#include <cstdlib>

namespace e2e {

namespace {

constexpr DWORD pollInterval = 20; // milliseconds
constexpr DWORD hand = 60;         // milliseconds between the parts of a click

/// Wide, since the narrow message comes back unconverted from another process.
std::string rowText(HWND list, WPARAM row) {
    wchar_t wide[1024] = {};
    SendMessageTimeoutW(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(wide), SMTO_NORMAL, answerTime,
                        nullptr);
    return narrow(wide);
}

RECT placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

INPUT mouseInput(DWORD event) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = event;
    return input;
}

/// Waits until a click on a row cannot pass for the second half of a double click.
void awaitSingleClick() {
    static DWORD last = 0;
    while (GetTickCount() < last + GetDoubleClickTime()) {
        Sleep(pollInterval);
    }
    last = GetTickCount() + 2 * hand;
}

/// Brings the mouse over the control, which must lie open under it, and stay so for as long as a hand takes.
void pointAt(HWND control, const RECT& place, const std::function<bool()>& ready) {
    HWND const window = GetAncestor(control, GA_ROOT);
    const POINT centre{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    const auto isOpen = [&] {
        SetCursorPos(centre.x, centre.y);
        return ready() && GetAncestor(WindowFromPoint(centre), GA_ROOT) == window;
    };
    const auto staysOpen = [&] {
        const bool open = isOpen();
        Sleep(hand);
        return open && isOpen();
    };
    if (!comesTrue(staysOpen, Milliseconds(answerTime))) {
        throw NotSeen("\"" + textOf(control) + "\" is covered by \"" + textOf(WindowFromPoint(centre)) +
                      "\"");
    }
}

/// A real click, through the system's input queue.
void clickAt(HWND control, const RECT& place, const std::function<bool()>& ready) {
    pointAt(control, place, ready);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    Sleep(hand);
    sendMouse(MOUSEEVENTF_LEFTUP);
}

void clickOn(HWND control) {
    e2e::clickOn(control, placeOf(control));
}

bool isOfClass(HWND window, const char* name) {
    return CompareStringA(LOCALE_INVARIANT, NORM_IGNORECASE, classOf(window).c_str(), -1, name, -1) ==
           CSTR_EQUAL;
}

std::vector<std::string> rowsOf(HWND list) {
    std::vector<std::string> rows;
    const LRESULT count = send(list, LB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
        rows.push_back(rowText(list, static_cast<WPARAM>(row)));
    }
    return rows;
}

/// Where the row with this text stands on the screen, if the list has it.
std::optional<RECT> placeOfRow(HWND list, const std::string& text) {
    const std::vector<std::string> rows = rowsOf(list);
    const auto row = std::find(rows.begin(), rows.end(), text);
    if (row == rows.end()) {
        return std::nullopt;
    }
    RECT place{};
    send(list, LB_GETITEMRECT, static_cast<WPARAM>(row - rows.begin()), reinterpret_cast<LPARAM>(&place));
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

/// False when the list has no row with this text.
bool bringIntoSight(HWND list, const std::string& text) {
    const std::optional<RECT> row = placeOfRow(list, text);
    if (!row) {
        return false;
    }
    RECT area{};
    GetClientRect(list, &area);
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&area), 2);
    if (row->top < area.top || row->bottom > area.bottom) {
        const std::vector<std::string> rows = rowsOf(list);
        send(list, LB_SETTOPINDEX,
             static_cast<WPARAM>(std::find(rows.begin(), rows.end(), text) - rows.begin()), 0);
    }
    return true;
}

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

/// Asks for the control's window to come to the front, and tells whether it has come.
std::function<bool()> inFront(HWND control) {
    HWND const window = GetAncestor(control, GA_ROOT);
    SetForegroundWindow(window);
    return [window] { return GetForegroundWindow() == window; };
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

void clickOn(HWND control, const RECT& place) {
    clickAt(control, place, inFront(control));
}

void doubleClickOn(HWND control, const RECT& place) {
    pointAt(control, place, inFront(control));
    const INPUT press = mouseInput(MOUSEEVENTF_LEFTDOWN);
    const INPUT release = mouseInput(MOUSEEVENTF_LEFTUP);
    // In one go: between two goes a busy machine might take longer than a double click may.
    INPUT all[] = {press, release, press, release};
    SendInput(4, all, sizeof press);
}

void sendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void sendMouse(DWORD event) {
    INPUT input = mouseInput(event);
    SendInput(1, &input, sizeof input);
}

void pressKey(WORD key) {
    sendKey(key, 0);
    Sleep(hand);
    sendKey(key, KEYEVENTF_KEYUP);
}

std::string plainBreaks(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            plain += '\n';
            i += i + 1 < text.size() && text[i + 1] == '\n' ? 1 : 0;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

std::string Form::caption() const {
    return shownText(window_);
}

bool Form::isVisible() const {
    return IsWindowVisible(window_) != 0;
}

HWND Form::find(const std::string& text, std::size_t which) const {
    for (HWND child : visibleChildren(window_)) {
        if (withoutMarks(shownText(child)) == text && which-- == 0) {
            return child;
        }
    }
    return nullptr;
}

HWND Form::await(const std::string& text, std::size_t which) const {
    HWND found = nullptr;
    comesTrue([&] { return (found = find(text, which)) != nullptr; });
    if (found == nullptr) {
        throw NotSeen("no \"" + text + "\" on " + describe());
    }
    return found;
}

bool Form::shows(const std::string& text) const {
    return find(text) != nullptr;
}

void Form::awaitText(const std::string& text) const {
    await(text);
}

void Form::click(const std::string& text, std::size_t which) const {
    clickOn(await(text, which));
}

bool Form::isTicked(const std::string& text) const {
    return send(await(text), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool Form::isEnabled(const std::string& text) const {
    return IsWindowEnabled(await(text)) != 0;
}

std::string Form::field() const {
    const std::vector<std::string> all = fields();
    if (all.empty()) {
        throw NotSeen("no text field on " + describe());
    }
    return all.front();
}

std::vector<HWND> Form::edits() const {
    std::vector<HWND> all = visibleChildren(window_);
    std::erase_if(all, [](HWND child) { return !isOfClass(child, "Edit"); });
    return all;
}

std::vector<std::string> Form::fields() const {
    std::vector<std::string> texts;
    for (HWND edit : edits()) {
        texts.push_back(textOf(edit));
    }
    return texts;
}

void Form::fill(std::size_t field, const std::string& text) const {
    if (!comesTrue([&] { return edits().size() > field; })) {
        throw NotSeen("no text field to write \"" + text + "\" into on " + describe());
    }
    send(edits()[field], WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

HWND Form::tree() const {
    for (HWND child : visibleChildren(window_)) {
        if (isOfClass(child, "SysTreeView32")) {
            return child;
        }
    }
    throw NotSeen("no tree on " + describe());
}

std::string Form::beside(const std::string& label) const {
    const RECT from = placeOf(await(label));
    HWND nearest = nullptr;
    for (HWND child : visibleChildren(window_)) {
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
    std::vector<std::string> all;
    bool listSeen = false;
    comesTrue([&] {
        for (HWND child : visibleChildren(window_)) {
            if (isOfClass(child, "ListBox")) {
                const std::vector<std::string> rows = rowsOf(child);
                all.insert(all.end(), rows.begin(), rows.end());
                listSeen = true;
            }
        }
        return listSeen;
    });
    if (!listSeen) {
        throw NotSeen("no list on " + describe());
    }
    return all;
}

void Form::clickRow(const std::string& text) const {
    HWND list = nullptr;
    std::optional<RECT> place;
    comesTrue([&] {
        for (HWND child : visibleChildren(window_)) {
            if (isOfClass(child, "ListBox") && bringIntoSight(child, text) &&
                (place = placeOfRow(child, text))) {
                list = child;
                return true;
            }
        }
        return false;
    });
    if (list == nullptr) {
        throw NotSeen("no row \"" + text + "\" on " + describe());
    }
    awaitSingleClick();
    clickOn(list, *place);
}

HWND Form::dropDown() const {
    for (HWND child : visibleChildren(window_)) {
        if (isOfClass(child, "ComboBox")) {
            return child;
        }
    }
    throw NotSeen("no drop-down list on " + describe());
}

std::string Form::chosen() const {
    return textOf(dropDown());
}

void Form::choose(const std::string& text) const {
    HWND const box = dropDown();
    clickOn(box);
    HWND list = nullptr;
    std::optional<RECT> place;
    if (!comesTrue([&] { return (list = openList(box)) != nullptr && (place = placeOfRow(list, text)); })) {
        throw NotSeen("no row \"" + text + "\" in the drop-down list of " + describe());
    }
    // Coming to the front would close the list.
    clickAt(list, *place, [] { return true; });
    if (!comesTrue([&] { return IsWindowVisible(list) == 0; })) {
        throw NotSeen("the drop-down list stays open on " + describe());
    }
}

void Form::close() const {
    PostMessageA(window_, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void Form::bringToFront() const {
    SetForegroundWindow(window_);
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

void Box::press(const std::string& button) const {
    for (HWND child : visibleChildren(window)) {
        if (withoutMarks(textOf(child)) == button) {
            clickOn(child);
            if (!comesTrue([&] { return IsWindow(window) == 0; })) {
                throw NotSeen("\"" + button + "\" did not close \"" + text + "\"");
            }
            return;
        }
    }
    throw NotSeen("no button \"" + button + "\" under \"" + text + "\"");
}

} // namespace e2e
