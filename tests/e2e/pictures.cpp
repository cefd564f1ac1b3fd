#include "pictures.h"

#include "driver.h"
#include "workplace.h"

#include <cstdio>
#include <exception>

namespace e2e {

void say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

void Pictures::take(const std::string& name) const {
    Sleep(300); // the last paint reaches the screen
    say("@picture " + name + ".png");
    comesTrue([&] { return readFile(folder_ + name + ".png").has_value(); });
}

int takeWalk(int count, char** arguments, const std::function<void(const Pictures& pictures)>& walk) {
    if (count != 3) {
        std::fprintf(stderr, "usage: %s PROGRAM PICTURES-FOLDER\n", arguments[0]);
        return 2;
    }
    setInputs({arguments[1], ""});
    try {
        walk(Pictures(std::string(arguments[2]) + "\\"));
        return 0;
    } catch (const std::exception& problem) {
        say(std::string("The walk stops: ") + problem.what());
        return 1;
    }
}

} // namespace e2e
