// The first full scan of the real system directory.

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <gtest/gtest.h>

namespace e2e {
namespace {

TEST(FirstRun, PutsTheWholeSystemDirectoryIntoTheBaseline) {
    const ProgramFolder folder("first-run");
    const Program program(folder.program());
    program.press("Yes");
    const Form window = program.form("Welcome to Tarvelon", 10 * patience);
    EXPECT_TRUE(comesTrue([&] { return !program.hasForm("AutoCheck"); })) << program.describe();
    EXPECT_EQ(folder.data("Integrity.dat"), systemBaseline());
    window.close();
    EXPECT_TRUE(program.ends());
}

} // namespace
} // namespace e2e
