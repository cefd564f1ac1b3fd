#pragma once

#include "driver.h"

namespace e2e {

/// Called with a short name for each screen, while that is in front.
using Look = std::function<void(const std::string& name)>;

/// Opens every screen of the program, one after the other, and has each looked at. As a guest, those that
/// show or touch what is the system's are left out.
void walkScreens(const Look& look);

/// Holds the first scan once it is under way. Gives its window.
Form holdScan(const Program& program);

} // namespace e2e
