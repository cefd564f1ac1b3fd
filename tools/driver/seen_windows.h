#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace e2e {

// Windows of another process, as they answer from outside.

/// Milliseconds that a busy window may take for one message.
inline constexpr UINT answerTime = 5'000;

// Texts are UTF-8 on this side.
std::string narrow(const wchar_t* wide);
std::wstring wide(const std::string& narrow);

std::string classOf(HWND window);
/// Without regard to case.
bool isOfClass(HWND window, const char* name);

/// The window's answer to a message, whose texts are wide; 0 when it gives none in time.
LRESULT send(HWND window, UINT message, WPARAM first, LPARAM second);

/// The window's own text.
std::string textOf(HWND window);

/// The text as the system keeps it. Unlike `textOf`, it asks nothing of the program, which answers only
/// between two files while it scans.
std::string shownText(HWND window);

/// The text as it shows: a button marks its access key with "&", and two of them show as one.
std::string withoutMarks(const std::string& text);

/// All below the window that can be seen.
std::vector<HWND> visibleChildren(HWND parent);

/// Those of one class.
std::vector<HWND> childrenOfClass(HWND parent, const char* name);

/// On the screen.
RECT placeOf(HWND window);

/// Returns when nothing of the window in front has waited to be painted for half a second.
void awaitStillness();

/// What stands in a list box.
std::vector<std::string> rowsOf(HWND list);
/// Where a row stands on the screen. Scrolls to it when it is out of sight.
RECT placeOfRow(HWND list, std::ptrdiff_t row);

} // namespace e2e
