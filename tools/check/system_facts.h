#pragma once

#include <string>
#include <utility>
#include <vector>

namespace check {

/// What the tests may hang on, each with its name, in the order of the report.
std::vector<std::pair<std::string, std::string>> systemFacts(const std::string& folder);

/// The system's ANSI code page, whatever this process was granted.
unsigned ansiPage();
/// Such as 19045 for the last Windows 10.
unsigned long buildNumber();
/// The drive keeps a short name beside each long one.
bool keepsShortNames(const std::string& folder);

} // namespace check
