#pragma once

#include "tools/driver/driver.h"

#include <functional>
#include <string>

namespace e2e {

/// Prints a line at once, for the script that started this program and for the person who reads along.
void say(const std::string& line);

/// Asks the script that started this program for pictures of the screen: a line "@picture NAME PLACE" each,
/// with the place of the window in front, as "WIDTHxHEIGHT+LEFT+TOP".
class Pictures {
public:
    /// `folder`, with a backslash, is where the script puts them.
    explicit Pictures(std::string folder)
        : folder_(std::move(folder)) {}

    /// Returns when the picture is there. The name goes without ".png".
    void take(const std::string& name) const;

private:
    std::string folder_;
};

/// What `main` does for a walk through the program: the arguments are the program, the folder for the
/// pictures and, as a guest, the one to work in. Gives the exit code; a walk that stops tells why.
int takeWalk(int count, char** arguments, const std::function<void(const Pictures& pictures)>& walk);

} // namespace e2e
