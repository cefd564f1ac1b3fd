#include "tools/driver/driver.h"

#include <cstdio>

// usage: boxes PROGRAM ARGUMENTS STEP...
//
// Starts a program and takes the steps in turn: a button of the message box that then shows, whose text is
// printed, "run COMMAND", which goes on while the program runs, or "see CAPTION" for a window.
int main(int count, char** arguments) {
    try {
        const e2e::Program program(arguments[1], arguments[2]);
        for (int i = 3; i < count; ++i) {
            const std::string step = arguments[i];
            if (step.starts_with("run ")) {
                e2e::Program other(step.substr(4, step.find('|') - 4), step.substr(step.find('|') + 1));
                other.ends();
                std::printf("code %lu\n", other.exitCode());
            } else if (step == "end") {
                program.ends();
                std::printf("code %lu\n", program.exitCode());
            } else if (step.starts_with("see ")) {
                program.form(step.substr(4));
            } else {
                const e2e::Box box = program.box();
                std::printf("%s\n", box.text.c_str());
                program.press(step);
                e2e::comesTrue([&] { return IsWindow(box.window) == FALSE; });
            }
        }
    } catch (const e2e::NotSeen& notSeen) {
        std::printf("%s\n", notSeen.what());
        return 1;
    }
}
