#pragma once

#include "platform/win32/owned.h"

#include <string>

namespace tarvelon {

/// A text that shows while the mouse rests on a window. Its own window lives only while the mouse is there:
/// hidden, it would stand in every list of open windows under the text shown last.
class ToolTip {
public:
    /// An empty text shows nothing. `widestLine` is in pixels.
    void set(const std::string& text, int widestLine);
    /// Has to see all mouse messages of the window, that of leaving included.
    void see(HWND owner, UINT message, WPARAM wide, LPARAM low);

private:
    void open(HWND owner);

    std::string text_;
    int widestLine_ = 0;
    OwnedWindow window_;
};

} // namespace tarvelon
