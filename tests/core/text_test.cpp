#include "core/text.h"
#include "platform/sim/sim_codepage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {

namespace {

using testing::ElementsAre;

class Text : public testing::Test {
protected:
    SimCodePage codePage;
    CaseRules cases{codePage};
};

TEST_F(Text, SearchingPassesOverCaseInTheWholeCodePage) {
    EXPECT_EQ(cases.find("xxKERNEL32", "kernel"), 2u);
    EXPECT_EQ(cases.find("stra\xdf"
                         "e \xc4nderung",
                         "\xe4NDER"),
              7u);
    EXPECT_EQ(cases.find("\xff", "\x9f"), 0u) << "A pair far apart";
    EXPECT_EQ(cases.find("a\xd7", "a\xf7"), std::string::npos) << "Times and divided-by are no pair";
    EXPECT_EQ(cases.find("a[", "a{"), std::string::npos);
    EXPECT_EQ(cases.find("=a=A==B", "=b"), 5u) << "The first character stands alone in its fold";

    EXPECT_EQ(cases.find("abcabc", "ABC", 1), 3u);
    EXPECT_EQ(cases.find("abc", "c", 3), std::string::npos);
    EXPECT_EQ(cases.find("abc", "a", 99), std::string::npos);
    EXPECT_EQ(cases.find("abc", "abcd"), std::string::npos);
    EXPECT_EQ(cases.find("abc", "", 3), 3u);
    EXPECT_EQ(cases.replaceAll("aAaAa", "aa", "x"), "xxa");
    EXPECT_EQ(cases.replaceAll("text", "", "x"), "text");
    EXPECT_EQ(cases.replaceAll("Null null", "NULL", "nullnull"), "nullnull nullnull");
}

TEST_F(Text, GetBetween) {
    const auto between = [&](std::string_view text, std::size_t start, std::string_view left,
                             std::string_view right) { return getBetween(cases, text, start, left, right); };
    EXPECT_EQ(between("a=1\r\n", 1, "A=", "\r\n"), "1");
    EXPECT_EQ(between("a=1\r\na=2\r\n", 3, "a=", "\r\n"), "2");
    EXPECT_EQ(between("<<>>", 1, "<<", ">>"), "");
    EXPECT_EQ(between("xABx", 1, "AB", "B"), "") << "The right one is looked for behind the left one";
    EXPECT_EQ(between("a=1", 1, "a=", "\r\n"), "");
    EXPECT_EQ(between("a=1\r\n", 1, "b=", "\r\n"), "");
    EXPECT_EQ(between("a=1\r\n", 99, "a=", "\r\n"), "");
    EXPECT_EQ(between("a=1\r\n", 0, "a=", "\r\n"), "");
}

TEST_F(Text, CuttingAndPaths) {
    EXPECT_EQ(trim("  a \t "), "a \t") << "Blanks only";
    EXPECT_EQ(trim(std::string(" a\0 ", 4)), std::string("a\0", 2));
    EXPECT_EQ(trim("   "), "");
    EXPECT_THAT(split("a,,b,", ','), ElementsAre("a", "", "b", ""));
    EXPECT_THAT(split("", ','), ElementsAre());
    EXPECT_THAT(split("a", ','), ElementsAre("a"));

    const auto scanner = splitExeAndArgs("C:\\av.exe | /a|/b ");
    ASSERT_TRUE(scanner);
    EXPECT_EQ(scanner->exe, "C:\\av.exe ");
    EXPECT_EQ(scanner->args, "/a|/b");
    EXPECT_FALSE(splitExeAndArgs("C:\\av.exe"));

    EXPECT_EQ(withBackslash("C:"), "C:\\");
    EXPECT_EQ(withBackslash("C:\\"), "C:\\");
    EXPECT_EQ(withBackslash(""), "\\");
    EXPECT_EQ(backupOf("C:\\Data\\Integrity.dat"), "C:\\Data\\Integrity.bak");
    EXPECT_EQ(backupOf("x"), "bak");
    EXPECT_EQ(bareName("C:\\a\\b.dll"), "b.dll");
    EXPECT_EQ(bareName("b.dll"), "b.dll");
    EXPECT_EQ(lastCharacters("ab", 12), "ab");
}

TEST_F(Text, NumbersAndShifting) {
    EXPECT_EQ(toNumber(" -42 "), -42);
    EXPECT_EQ(toNumber("2147483647"), 2147483647);
    for (const char* wrong : {"", "  ", "2147483648", "1x", "x", "1 2", "1.5", "--1"}) {
        EXPECT_FALSE(toNumber(wrong)) << wrong;
    }
    EXPECT_EQ(shiftText("ABC", "A1"), "A1") << "Left alone unless asked";
    EXPECT_EQ(shiftText("ABC", "A1", false), "VF") << "Asked at all counts, not what for";
    EXPECT_EQ(shiftText("CBA", shiftText("ABC", "any \xff text", true), true), "any \xff text");
    EXPECT_EQ(shiftText("abc", "A1", true), "A1");
}

} // namespace

} // namespace tarvelon
