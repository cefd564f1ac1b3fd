#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// Drives the program the way its user does: from another process, by the texts on the screen and the keys.
namespace e2e {

using Milliseconds = std::chrono::milliseconds;

/// How long something on the screen may take before a test gives up: far longer than any healthy run.
constexpr Milliseconds patience{60'000};

/// What was looked for did not come. The text tells what was on the screen instead.
class NotSeen : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Asks again and again until `holds` is true; false when `limit` has passed.
bool comesTrue(const std::function<bool()>& holds, Milliseconds limit = patience);

constexpr DWORD handTime = 60; ///< Milliseconds that a hand takes from pressing to releasing.

/// Presses and releases the mouse in the middle of a part of a control, given in places of the screen, as
/// soon as that lies open and `ready` holds.
void clickAt(HWND control, const RECT& place, const std::function<bool()>& ready);
/// The same once the control's window has come to the front.
void clickOn(HWND control, const RECT& place);

/// Presses and releases a key, which goes to where the keyboard is.
void pressKey(WORD key);

/// One half of that; `flags` is 0 or KEYEVENTF_KEYUP.
void sendKey(WORD key, DWORD flags);
/// One press or release of the mouse where it stands, such as MOUSEEVENTF_LEFTDOWN.
void sendMouse(DWORD event);

/// One top-level window of the program.
class Form {
public:
    explicit Form(HWND window)
        : window_(window) {}

    std::string caption() const;
    bool isVisible() const;

    /// Writes into one of the visible text fields, counted in the order of the keyboard, once it is there.
    void fill(std::size_t field, const std::string& text) const;

    /// The visible tree, for `TreeView`.
    HWND tree() const;

    /// The text of the nearest control to the right of a label, on the same row.
    std::string beside(const std::string& label) const;

    /// The rows of the visible list boxes, once there is one.
    std::vector<std::string> rows() const;

    /// Opens the visible drop-down list and clicks the row with this text.
    void choose(const std::string& text) const;

    /// What the close box in the window's frame does.
    void close() const;

    /// Waits until keys go to this window.
    void bringToFront() const;

    /// All visible texts, for messages about failures.
    std::string describe() const;

private:
    HWND await(const char* kind) const;

    HWND window_;
};

/// A message box of the program, as read from the screen.
struct Box {
    HWND window = nullptr;
    std::string title;
    std::string text;
    std::vector<std::string> buttons; ///< Without the marks of their access keys.
};

/// What a user presses, and what must stand on the screen thereupon; either may be empty.
struct Step {
    std::string press;
    std::string shows = "";
};

/// One running copy of the program. Destroying it ends the process if it still runs.
class Program {
public:
    Program(const std::string& file, const std::string& arguments = "");
    Program(const Program&) = delete;
    ~Program();

    /// Presses and releases the mouse on what has exactly this text, once it is there and answers: a control,
    /// a button of a message box, or a row of a list. Of several, the one in the window in front is meant,
    /// and there the first in the order of the keyboard.
    void press(const std::string& text) const;
    /// True when a window, a control, a message box or a row of a list has exactly this text.
    bool shows(const std::string& text) const;
    /// Waits for that.
    void awaitText(const std::string& text) const;
    void play(const std::vector<Step>& steps) const;

    /// Waits for a visible window whose caption contains the text.
    Form form(const std::string& captionPart, Milliseconds limit = patience) const;
    /// True when such a window is visible now.
    bool hasForm(const std::string& captionPart) const;

    /// Waits for a message box.
    Box box(Milliseconds limit = patience) const;
    /// The message box that is open now.
    std::optional<Box> boxNow() const;

    /// Ends the process without a word to it, from any thread.
    void kill() const;
    /// True when the process has ended by itself within `limit`.
    bool ends(Milliseconds limit = patience) const;
    /// What it has ended with.
    DWORD exitCode() const;

    DWORD id() const { return process_.dwProcessId; }
    /// The visible windows, from the front to the back.
    std::vector<HWND> windows() const;

    /// The files that the process is made of: its program and the libraries loaded by now.
    std::vector<std::string> modules() const;

    /// All visible windows of the process, for messages about failures.
    std::string describe() const;

private:
    /// Where a text stands: a control, or a row of a list.
    struct Spot {
        HWND control;
        std::optional<std::ptrdiff_t> row;
    };

    /// With `answering`, only what can be pressed.
    std::optional<Spot> find(const std::string& text, bool answering) const;
    std::optional<HWND> formNow(const std::string& captionPart) const;

    PROCESS_INFORMATION process_{};
};

} // namespace e2e
