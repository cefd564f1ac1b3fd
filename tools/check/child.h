#pragma once

#include "tools/driver/driver.h"

namespace check {

enum class Ending { Ended, Hung, NotStarted };

struct Outcome {
    Ending ending;
    DWORD code; ///< What it has ended with, or why it could not be started.
};

/// Runs a program with its output coming back line by line, and all that it starts with it. Where nothing
/// comes for as long as `silence`, and at the latest when this program ends, all of them are ended.
Outcome runChild(const std::string& program, const std::string& arguments, e2e::Milliseconds silence,
                 const std::function<void(const std::string& line)>& onLine);

} // namespace check
