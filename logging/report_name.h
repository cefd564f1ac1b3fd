#pragma once

#include <string>

namespace tarvelon {

class TextRules;

/// A report's name is `<date>(<time>).log`. These are the two fields as they stand in names and on the
/// screen.

/// The date of a name: "/" as "-", and each part but the last with two digits at least.
std::string reportDate(const std::string& date);

/// "3:04:07 PM" as "3_04_07PM".
std::string reportTimeStored(const TextRules& texts, const std::string& time);

/// "3_04_07PM" as "3:04:07 PM".
std::string reportTimeShown(const TextRules& texts, const std::string& time);

} // namespace tarvelon
