#include "tools/driver/workplace.h"

#include <gtest/gtest.h>

// usage: e2e [GoogleTest options] PROGRAM EXPECTED-BASELINES-FOLDER
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    e2e::setInputs({arguments[1], std::string(arguments[2]) + "\\"});
    return RUN_ALL_TESTS();
}
