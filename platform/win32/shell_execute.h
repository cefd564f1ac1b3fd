#pragma once

#include "platform/win32/windows_api.h"

#include <cstdint>
#include <string>

namespace tarvelon {

/// `ShellExecute`: above 32 for success. Empty texts are left out.
std::intptr_t shellExecute(HWND owner, const std::string& verb, const std::string& file,
                           const std::string& arguments, const std::string& folder, int show);

/// The system's window of a folder, with the file in it selected.
void showInFolder(HWND owner, const std::string& file);
/// The system's sheet of what it knows of a file.
void showProperties(HWND owner, const std::string& file);

} // namespace tarvelon
