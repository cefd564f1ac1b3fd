#include "pictures.h"

#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <cstdio>
#include <exception>

namespace e2e {

void say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

void Pictures::take(const std::string& name) const {
    SetCursorPos(0, 0); // Where it rests on a row, a tip comes.
    awaitStillness();
    const RECT front = placeOf(GetForegroundWindow());
    say("@picture " + name + ".png " + std::to_string(front.right - front.left) + "x" +
        std::to_string(front.bottom - front.top) + "+" + std::to_string(front.left) + "+" +
        std::to_string(front.top));
    comesTrue([&] { return readFile(folder_ + name + ".png").has_value(); });
}

int takeWalk(int count, char** arguments, const std::function<void(const Pictures& pictures)>& walk) {
    if (count < 3) {
        std::fprintf(stderr, "usage: %s PROGRAM PICTURES-FOLDER [FOLDER]\n", arguments[0]);
        return 2;
    }
    setInputs(arguments[1], arguments[3]);
    try {
        walk(Pictures(std::string(arguments[2]) + "\\"));
        return 0;
    } catch (const std::exception& problem) {
        say(std::string("The walk stops: ") + problem.what());
        return 1;
    }
}

} // namespace e2e
