#pragma once

#include "view/theme.h"

namespace tarvelon {

/// The whole program, with windows of that theme, until its message loop ends. Gives the exit code.
int run(ThemeKind theme);

} // namespace tarvelon
