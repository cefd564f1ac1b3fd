// Walks through every screen of the program and has a picture taken of each. usage: screens PROGRAM
// PICTURES-FOLDER [FOLDER]. With the last, as a guest: what the whole system would feel is left out.

#include "tools/driver/screens.h"
#include "pictures.h"

int main(int count, char** arguments) {
    return e2e::takeWalk(count, arguments, [](const e2e::Pictures& pictures) {
        e2e::walkScreens([&](const std::string& name) { pictures.take(name); });
    });
}
