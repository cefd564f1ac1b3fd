#pragma once

#include "core/services.h"

#include <string>

namespace tarvelon {

class check;

/// Writes the reports about files that were handed to the scanners.
class LogFiles : Services {
public:
    LogFiles(const check& autoLogging, const Services& services)
        : Services(services)
        , autoLogging_(autoLogging) {}

    /// Writes a report of one line: a heading that ends in the text's first comma, then the names, a comma
    /// between each two. The names may stand in quotes or not, with blanks between them; a blank in a name
    /// becomes a comma. Unless `force` is set, nothing is written for a text without any name, and none while
    /// Auto-Logging is off. During a shut-down the report counts as written all the same. Throws `Failure`
    /// when the file cannot be written.
    void writeLog(const std::string& listText, bool force = false);

    /// "Data\Log\<date>(<time>).log" by the clock, so that two reports within one second share a name.
    std::string fileName() const;

private:
    bool passesGate(const std::string& listText);

    const check& autoLogging_;
};

} // namespace tarvelon
