#pragma once

#include <string>

namespace check {

/// Takes back what an earlier check that was broken off has left: its programs, its registry values and keys,
/// its folder. False where something of the folder stays.
bool takeBack(const std::string& folder);

/// Tarvelon runs, of whichever folder.
bool programRuns();

} // namespace check
