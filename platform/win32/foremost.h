#pragma once

#include "platform/win32/windows_api.h"

namespace tarvelon {

/// The foremost of the program's forms, boxes and dialogs that can be seen in full size and used; null when
/// there is none.
HWND foremostUsable();

} // namespace tarvelon
