#pragma once

#include "platform/win32/windows_api.h"

namespace tarvelon {

class Control;

enum class Rows { Selected, All };

/// Puts rows of a list or tree, whose window it is, on the clipboard; all of them with a line for each. False
/// for any other control. With nothing to copy the clipboard stays as it is.
bool copyRows(HWND window, const Control& control, Rows which);

/// The menu of what can be done with a row of a list or tree, and what the user chooses from it. `where` is
/// that of WM_CONTEXTMENU. False for any other control.
bool showRowMenu(HWND window, Control& control, LPARAM where);

} // namespace tarvelon
