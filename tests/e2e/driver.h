#pragma once

#include <windows.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// Drives the program the way its user does: from another process, by what stands on the screen.
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

/// Every line break as a single "\n", whichever way the system stores it.
std::string plainBreaks(const std::string& text);

/// Presses and releases the mouse in the middle of a part of a control, given in places of the screen.
void clickOn(HWND control, const RECT& place);

/// The same twice, as a double click.
void doubleClickOn(HWND control, const RECT& place);

/// Presses and releases a key, which goes to where the keyboard is.
void pressKey(WORD key);

/// One half of that; `flags` is 0 or KEYEVENTF_KEYUP.
void sendKey(WORD key, DWORD flags);
/// One press or release of the mouse where it stands, such as MOUSEEVENTF_LEFTDOWN.
void sendMouse(DWORD event);

/// One top-level window of the program. Controls are found by the text that the user reads.
class Form {
public:
    explicit Form(HWND window)
        : window_(window) {}

    std::string caption() const;
    bool isVisible() const;

    /// True when a visible control has exactly this text.
    bool shows(const std::string& text) const;
    /// Waits for that.
    void awaitText(const std::string& text) const;

    /// Presses and releases the mouse on the control with this text, once it is there. `which` counts from 0
    /// through several with the same text, in the order of the keyboard.
    void click(const std::string& text, std::size_t which = 0) const;

    /// True when the check box or option button with this text is ticked.
    bool isTicked(const std::string& text) const;

    /// False while the control with this text answers to nothing.
    bool isEnabled(const std::string& text) const;

    /// What stands in the visible text field.
    std::string field() const;
    /// What stands in all visible text fields, in the order of the keyboard.
    std::vector<std::string> fields() const;
    /// Writes into one of them, once it is there.
    void fill(std::size_t field, const std::string& text) const;

    /// The visible tree, for `TreeView`.
    HWND tree() const;

    /// The text of the nearest control to the right of a label, on the same row.
    std::string beside(const std::string& label) const;

    /// The rows of the visible list boxes, once there is one.
    std::vector<std::string> rows() const;
    /// Clicks the row with this text in a list box, once it is there; scrolls to it when it is out of sight.
    void clickRow(const std::string& text) const;

    /// What the visible drop-down list shows as chosen.
    std::string chosen() const;
    /// Opens the drop-down list and clicks the row with this text.
    void choose(const std::string& text) const;

    /// What the close box in the window's frame does.
    void close() const;

    /// Waits until keys go to this window.
    void bringToFront() const;

    /// All visible texts, for messages about failures.
    std::string describe() const;

private:
    HWND find(const std::string& text, std::size_t which = 0) const;
    HWND await(const std::string& text, std::size_t which = 0) const;
    std::vector<HWND> edits() const;
    HWND dropDown() const;

    HWND window_;
};

/// A message box of the program, as read from the screen.
struct Box {
    HWND window = nullptr;
    std::string title;
    std::string text;
    std::vector<std::string> buttons; ///< Without the marks of their access keys.

    /// Clicks the button and waits until the box is gone.
    void press(const std::string& button) const;
};

/// One running copy of the program. Destroying it ends the process if it still runs.
class Program {
public:
    Program(const std::string& file, const std::string& arguments = "");
    Program(const Program&) = delete;
    ~Program();

    /// Waits for a visible window whose caption contains the text, and brings it back when it is minimised.
    Form form(const std::string& captionPart) const;
    /// True when such a window is visible now.
    bool hasForm(const std::string& captionPart) const;

    /// Waits for a message box.
    Box box() const;
    /// Waits for one with this text and title, and presses a button of it.
    void answer(const std::string& text, const std::string& button = "OK",
                const std::string& title = "TarvelonLow") const;
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
    std::optional<HWND> formNow(const std::string& captionPart) const;

    PROCESS_INFORMATION process_{};
};

} // namespace e2e
