#include "pictures.h"

#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <algorithm>
#include <cstdio>
#include <exception>

namespace e2e {

namespace {

/// No part of the window waits to be painted.
bool isPainted(HWND window) {
    std::vector<HWND> parts = visibleChildren(window);
    parts.push_back(window);
    return std::ranges::all_of(parts, [](HWND part) { return GetUpdateRect(part, nullptr, FALSE) == FALSE; });
}

} // namespace

void say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

void Pictures::take(const std::string& name) const {
    SetCursorPos(0, 0); // Where it rests on a row, a tip comes.
    int still = 0;
    comesTrue([&] {
        still = isPainted(GetForegroundWindow()) ? still + 1 : 0;
        Sleep(100); // The last paint reaches the screen.
        return still == 5;
    });
    const RECT front = placeOf(GetForegroundWindow());
    say("@picture " + name + ".png " + std::to_string(front.right - front.left) + "x" +
        std::to_string(front.bottom - front.top) + "+" + std::to_string(front.left) + "+" +
        std::to_string(front.top));
    comesTrue([&] { return readFile(folder_ + name + ".png").has_value(); });
}

Form holdScan(const Program& program) {
    const Form scan = program.form("AutoCheck");
    // A percentage joins the caption with the first file; a pause before that would be forgotten.
    comesTrue([&] { return scan.caption() != "AutoCheck"; });
    program.play({{"Pause", "Resume"}});
    return scan;
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
