#pragma once

#include <windows.h>

#include <string>

namespace e2e {

/// What a screen reader is told of a control.
struct Told {
    std::string name;
    std::string keys; ///< Such as "Alt+S"; empty for none.
    LONG role;        ///< Of `ROLE_SYSTEM_...`
    LONG state;       ///< Of `STATE_SYSTEM_...`
};

Told askAsReader(HWND control);

/// What has the keyboard.
HWND keyboardFocus();

} // namespace e2e
