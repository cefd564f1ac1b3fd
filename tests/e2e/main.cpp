#include "tools/driver/workplace.h"

#include <gtest/gtest.h>

#include <cstdio>

// usage: e2e [GoogleTest options] PROGRAM EXPECTED-BASELINES-FOLDER
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (count != 3) {
        std::fputs("usage: e2e PROGRAM EXPECTED-BASELINES-FOLDER\n", stderr);
        return 2;
    }
    e2e::setInputs({arguments[1], std::string(arguments[2]) + "\\"});
    return RUN_ALL_TESTS();
}
