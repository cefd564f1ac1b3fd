#pragma once

namespace tarvelon {

/// Makes the system's newer kinds of controls known, before the first window or box that may have one.
/// Loading their library takes as long as reading some hundred files, and a clean scan at log-on shows none.
void needCommonControls();

} // namespace tarvelon
