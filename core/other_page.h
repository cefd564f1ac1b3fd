#pragma once

#include <optional>
#include <string>

namespace tarvelon {

struct Platform;

// The program's files outlive the code page that they were written in: the same system gives the process
// UTF-8 once it can, and its ANSI page before. Either is the other one's other page.

/// The text as this program writes it under the other page. Empty for a text that this page or the other one
/// cannot hold.
std::optional<std::string> inOtherPage(Platform& platform, const std::string& text);

/// A text from one of the program's own files, in the process's page, whichever of the two it was written in.
/// Left as it is when it means something in neither.
std::string fromEitherPage(Platform& platform, const std::string& text);

/// The system's ANSI page has all of its characters.
bool isInSystemPage(Platform& platform, const std::string& text);

/// A text that other programs write in the system's ANSI page, in the process's page.
std::string fromSystemPage(Platform& platform, const std::string& text);

} // namespace tarvelon
