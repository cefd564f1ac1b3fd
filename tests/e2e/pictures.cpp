#include "pictures.h"

#include "driver.h"
#include "workplace.h"

#include <cstdio>

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

} // namespace e2e
