#pragma once

#include <string>

namespace tarvelon {

struct Globals;
struct Platform;

/// Tells the user that the program starts anew, deletes the backup, starts the program's own file minimised,
/// and ends this process. The new one finds no baseline and asks its first-run question.
[[noreturn]] void restartWithoutBackup(Globals& globals, Platform& platform, const std::string& backup);

} // namespace tarvelon
