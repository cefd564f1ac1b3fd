#include "tools/driver/workplace.h"

#include <gtest/gtest.h>

// usage: e2e [GoogleTest options] PROGRAM [FOLDER]
//
// With a folder, which is made, everything happens there, and the system stays as it is.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    e2e::setInputs(arguments[1], arguments[2]);
    return RUN_ALL_TESTS();
}
