#pragma once

#include "platform/win32/windows_api.h"

#include <string>

namespace tarvelon {

/// A text that shows while the mouse rests on a window.
class ToolTip {
public:
    ToolTip() = default;
    ToolTip(const ToolTip&) = delete;
    ~ToolTip();

    /// An empty text shows nothing.
    void set(HWND owner, const std::string& text, int widestLine);
    /// Has to see all mouse messages of the window.
    void see(HWND owner, UINT message, WPARAM wide, LPARAM low) const;

private:
    HWND window_ = nullptr;
};

} // namespace tarvelon
