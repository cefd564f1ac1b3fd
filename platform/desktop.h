#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarvelon {

/// The top-level windows of all programs, call by call. A window of 0 is none.
class Desktop {
public:
    using Window = std::uintptr_t;

    virtual ~Desktop() = default;

    /// `GetWindow` on the desktop window for its first child: the first top-level window.
    virtual Window firstWindow() = 0;
    /// `GetWindow` for the next window in stacking order; 0 behind the last, and for a window that has gone.
    virtual Window nextWindow(Window window) = 0;

    /// `GetWindowTextA`: the title with a zero, cut to fit into `size` bytes; just a zero for a window that
    /// has no title or is not there.
    virtual void windowText(Window window, char* buffer, int size) = 0;
    /// `GetClassNameA`: likewise, but the buffer stays as it was for a window that is not there.
    virtual void className(Window window, char* buffer, int size) = 0;
    /// `GetWindowThreadProcessId`'s process; 0 for a window that is not there.
    virtual std::uint32_t processOf(Window window) = 0;

    /// `FindWindowA`: the first in stacking order with this class and title, both without regard to case;
    /// without a class any class will do.
    virtual Window find(const std::optional<std::string>& className, const std::string& title) = 0;
    /// `BringWindowToTop`.
    virtual void bringToTop(Window window) = 0;
    /// `SendMessageA` with no parameters; returns when the window has answered.
    virtual void send(Window window, std::uint32_t message) = 0;
};

} // namespace tarvelon
