#include "core/entry_block.h"
#include "platform/sim/sim_codepage.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvelon {

namespace {

class EntryBlocks : public testing::Test {
protected:
    std::string pick(std::initializer_list<const char*> pieces, int most) {
        std::string text;
        for (int left = number(0, most); left > 0; --left) {
            text += pieces.begin()[number(0, static_cast<int>(pieces.size()) - 1)];
        }
        return text;
    }
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

    std::string searched(const std::string& text, const std::string& key) const {
        return getBetween(cases, text, 1, "\r\n" + key + "=", "*E\r\n");
    }

    SimCodePage codePage;
    CaseRules cases{codePage};

private:
    std::mt19937 random_{20040229};
};

TEST_F(EntryBlocks, LookUpGivesWhatTheTextSearchGives) {
    int hits = 0;
    for (int round = 0; round < 20000; ++round) {
        // Few kinds of pieces, so that names repeat, run into each other and lack their ends.
        const std::string text = pick({"\r\n", "\r\n", "\r\n", "=", "=", "*E", "*e\r\n", "*E\r\n", "a", "A",
                                       "b", "\xe4", "\xc4", "\r", "\n", "*", "NULL", " ", "[DLL]"},
                                      number(0, 1) ? 12 : 80);
        EntryBlock block;
        block.setText(text);
        for (int look = 0; look < 6; ++look) {
            const std::string key = pick({"a", "A", "b", "=", "\xe4", "*E", "NULL", " ", "\r\n", "\r"}, 3);
            const std::string wanted = searched(text, key);
            ASSERT_EQ(block.find(cases, key), wanted) << "key \"" << key << "\" in:\n" << text;
            hits += wanted.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(hits, 5000) << "The blocks are too unlike real ones to prove anything";
}

TEST_F(EntryBlocks, AChangedTextIsIndexedAnew) {
    EntryBlock block;
    EXPECT_EQ(block.find(cases, "a.dll"), "");
    block.setText("[DLL]\r\na.dll=1*E\r\nA.DLL=2*E\r\nNULL*E\r\n");
    EXPECT_EQ(block.find(cases, "A.dll"), "1") << "The first line of a name counts";
    block.setText("[DLL]\r\nb.dll=3*E\r\nNULL*E\r\n");
    EXPECT_EQ(block.find(cases, "a.dll"), "");
    EXPECT_EQ(block.find(cases, "b.dll"), "3");
    EXPECT_EQ(block.find(cases, ""), "");
}

} // namespace

} // namespace tarvelon
