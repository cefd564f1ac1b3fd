#include "core/func_mod.h"
#include "core/search_index.h"
#include "core/text.h"
#include "platform/command_line.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tarvelon {
namespace {

SimCodePage codePage;
const CaseRules cases(codePage);

TEST(Text, IsFoundByTheFastSearchesWhereAPlainOneFindsIt) {
    std::mt19937 random(11);
    // So few characters that searches nearly hit all the time.
    const auto character = [&] { return "aA\xe4\xc4,"[random() % 5]; };
    for (int round = 0; round < 6000; ++round) {
        std::string text(random() % 700, ' ');
        std::ranges::generate(text, character);
        std::string searched = text.substr(random() % (text.size() + 1), random() % 25);
        if (!searched.empty() && random() % 3 == 0) {
            searched[random() % searched.size()] = character();
        }
        const std::size_t from = random() % (text.size() + 2);
        ASSERT_EQ(SearchIndex(text).find(searched), text.find(searched)) << searched << " in " << text;
        ASSERT_EQ(cases.find(text, searched, from), cases.upper(text).find(cases.upper(searched), from))
            << searched << " from " << from << " in " << text;
    }
    EXPECT_EQ(cases.find("a\xff\xd7", "\x9f\xf7"), std::string::npos) << "times and divided-by are no pair";
    EXPECT_EQ(cases.replaceAll("aAaAa", "aa", "x"), "xxa");
    EXPECT_EQ(cases.replaceAll("Null null", "NULL", "nullnull"), "nullnull nullnull");
    EXPECT_EQ(cases.replaceAll("text", "", "x"), "text");
}

TEST(Text, IsCutInPieces) {
    EXPECT_EQ(getBetween(cases, "a=1\r\na=2\r\n", 2, "A=", "\r\n"), "2");
    EXPECT_EQ(getBetween(cases, "xABx", 1, "AB", "B"), "") << "the right one behind the left one";
    EXPECT_EQ(getBetween(cases, "a=1\r\n", 0, "a=", "\r\n"), "");
    EXPECT_EQ(behindProgramName("\"C:\\Program Files\\x.exe\" \t/r "), "/r ");
    EXPECT_EQ(behindProgramName("x.exe\t/r"), "/r");
    EXPECT_EQ(trim("  a \t "), "a \t") << "blanks only";
    EXPECT_EQ(split("a,,b,", ','), (std::vector<std::string>{"a", "", "b", ""}));
    EXPECT_EQ(toNumber(" -42 "), -42);
    for (const char* wrong : {"", "2147483648", "1 2", "1.5", "--1"}) {
        EXPECT_FALSE(toNumber(wrong)) << wrong;
    }
    EXPECT_EQ(shiftText("ABC", "A1"), "A1") << "left alone unless asked";
    EXPECT_EQ(shiftText("ABC", "A1", false), "VF") << "asked at all counts, not what for";
    EXPECT_EQ(shiftText("CBA", "VF", true), "A1");
    EXPECT_EQ(shiftText("abc", "A1", true), "A1");
}

TEST(Text, OfFoldersEndsInOneBackslash) {
    SimWorkstation pc;
    const FuncMod funcMod(pc.platform());
    const std::string longest = "C:\\" + std::string(252, 'x');
    pc.folders.windowsDirectory = "C:\\";
    EXPECT_EQ(funcMod.getWinDir(), "C:\\");
    pc.faults.failNth(Operation::WindowsDirectory, 1);
    EXPECT_EQ(funcMod.getWinDir(), "\\");
    for (const auto& [path, folder] : {std::pair<std::string, std::string>{"  C:\\Up\\ ", "C:\\Up\\"},
                                       {"\\", "C:\\Program Files\\"},
                                       {longest + "x", longest + "\\"}}) {
        pc.folders.special[24] = path;
        EXPECT_EQ(funcMod.getSpecialFolder(24), folder);
    }
}

} // namespace
} // namespace tarvelon
