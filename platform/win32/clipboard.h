#pragma once

#include "platform/win32/windows_api.h"

#include <string>

namespace tarvelon {

/// False when another program has the clipboard, or there is no memory left for the text.
bool copyToClipboard(HWND owner, const std::string& text);

} // namespace tarvelon
