#pragma once

#include <windows.h>

#include <string>

namespace check {

/// What the screen shows at this place, as a PNG file. False when it cannot be had or written.
bool takeScreenPicture(const RECT& place, const std::string& path);

} // namespace check
