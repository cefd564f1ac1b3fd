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

using Page = SimCodePage::Page;

SimCodePage western;
const TextRules texts(western);

struct Letters {
    Page page;
    std::vector<std::string> small; ///< So few that searches nearly hit all the time.
    std::vector<std::string> capital;
};

TEST(Text, IsFoundByTheFastSearchesWhereAPlainOneFindsIt) {
    std::mt19937 random(11);
    const Letters pages[] = {
        {Page::Western, {"a", "\xe4", ","}, {"A", "\xc4", ","}},
        // The last two letters have another number of bytes than their capitals; the first stray byte is
        // none.
        {Page::Utf8,
         {"a", "\u00e4", "\u0436", "\xa4", "\u2c65"},
         {"A", "\u00c4", "\u0416", "\xa4", "\u023a"}},
        // Full-width letters and a zhe; second bytes that are a backslash, an "a" and an "A".
        {Page::Japanese,
         {"a", "\x82\x81", "\x84\x77", "\x83\x5c", "\x83\x61", "\\"},
         {"A", "\x82\x60", "\x84\x47", "\x83\x5c", "\x83\x61", "\\"}}};
    for (int round = 0; round < 9000; ++round) {
        const auto& [page, small, capital] = pages[round % 3];
        SimCodePage codePage(page);
        const TextRules rules(codePage);
        std::vector<std::size_t> letters(random() % 400), starts{0};
        std::string text, searched;
        for (std::size_t& letter : letters) {
            letter = random() % small.size();
            text += random() % 2 == 0 ? small[letter] : capital[letter];
            starts.push_back(text.size());
        }
        const std::size_t first = random() % (letters.size() + 1), from = random() % starts.size();
        std::vector<std::size_t> wanted(letters.begin() + static_cast<std::ptrdiff_t>(first), letters.end());
        wanted.resize(std::min<std::size_t>(wanted.size(), random() % 25));
        if (!wanted.empty() && random() % 3 == 0) {
            wanted[random() % wanted.size()] = random() % small.size();
        }
        for (const std::size_t letter : wanted) {
            searched += random() % 2 == 0 ? small[letter] : capital[letter];
        }
        const auto hit = std::search(letters.begin() + static_cast<std::ptrdiff_t>(from), letters.end(),
                                     wanted.begin(), wanted.end());
        const auto place = static_cast<std::size_t>(hit - letters.begin());
        const bool found = hit != letters.end() || wanted.empty();
        ASSERT_EQ(SearchIndex(text).find(searched), text.find(searched)) << searched << " in " << text;
        ASSERT_EQ(rules.find(text, searched, starts[from]), found ? starts[place] : std::string::npos)
            << searched << " from " << starts[from] << " in " << text;
        const bool whole = wanted == letters;
        ASSERT_EQ(rules.equal(text, searched), whole);
        ASSERT_EQ(rules.upper(text) == rules.upper(searched), whole);
    }
    EXPECT_EQ(texts.find("a\xff\xd7", "\x9f\xf7"), std::string::npos) << "times and divided-by are no pair";
    EXPECT_EQ(texts.replaceAll("aAaAa", "aa", "x"), "xxa");
    EXPECT_EQ(texts.replaceAll("Null null", "NULL", "nullnull"), "nullnull nullnull");
    EXPECT_EQ(texts.replaceAll("text", "", "x"), "text");
}

TEST(Text, IsCutAtWholeCharacters) {
    SimCodePage japanese(Page::Japanese), unicode(Page::Utf8);
    const TextRules rules(japanese);
    EXPECT_EQ(rules.withBackslash("C:\\\x83\x5c"), "C:\\\x83\x5c\\");
    EXPECT_EQ(rules.bareName("C:\\\x83\x5c\\\x95\x5c.dll"), "\x95\x5c.dll");
    EXPECT_EQ(rules.first("\x83\x7c|x", '|'), 2u);
    EXPECT_EQ(rules.last("\x83\x5c", '\\'), std::string::npos);
    const TextRules wide(unicode);
    EXPECT_EQ(wide.replaceAll("<\u2c65\u023a>", "\u023a\u2c65", "x"), "<x>");
    EXPECT_EQ(getBetween(wide, "\u2c65=1;", 1, "\u023a=", ";"), "1");
}

TEST(Text, IsCutInPieces) {
    EXPECT_EQ(getBetween(texts, "a=1\r\na=2\r\n", 2, "A=", "\r\n"), "2");
    EXPECT_EQ(getBetween(texts, "xABx", 1, "AB", "B"), "") << "the right one behind the left one";
    EXPECT_EQ(getBetween(texts, "a=1\r\n", 0, "a=", "\r\n"), "");
    EXPECT_EQ(behindProgramName("\"C:\\Program Files\\x.exe\" \t/r "), "/r ");
    EXPECT_EQ(behindProgramName("x.exe\t/r"), "/r");
    EXPECT_EQ(trim("  a \t "), "a \t") << "blanks only";
    EXPECT_EQ(toNumber(" -42 "), -42);
    for (const char* wrong : {"", "2147483648", "1 2", "1.5", "--1"}) {
        EXPECT_FALSE(toNumber(wrong)) << wrong;
    }
    EXPECT_EQ(shiftText("ABC", "A1"), "A1") << "left alone unless asked";
    EXPECT_EQ(shiftText("ABC", "A1", false), "VF") << "asked at all counts, not what for";
    EXPECT_EQ(shiftText("CBA", "VF", true), "A1");
}

TEST(Text, OfFoldersEndsInOneBackslash) {
    SimWorkstation pc;
    const FuncMod funcMod(pc.platform(), texts);
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
