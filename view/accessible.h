#pragma once

#include "platform/win32/windows_api.h"

namespace tarvelon {

class ControlWindow;

/// Answers WM_GETOBJECT, the question of screen readers what a window is, with the control's name, role,
/// state and value. Rows and all else are told by the system's own reader of the window's class. 0 where the
/// system has no readers.
LRESULT answerReader(ControlWindow& window, WPARAM wide);

} // namespace tarvelon
