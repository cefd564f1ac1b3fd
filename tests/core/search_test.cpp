#include "core/search_index.h"
#include "core/text.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvelon {

namespace {

/// Texts of few different characters, so that searches nearly hit all the time.
class PlainSearch : public testing::Test {
protected:
    std::size_t number(std::size_t to) { return std::uniform_int_distribution<std::size_t>(0, to)(random_); }

    std::string random(std::size_t length) {
        std::string text(length, ' ');
        for (char& character : text) {
            character = "aAb,"[number(3)];
        }
        return text;
    }

    /// A piece of the text, or nearly one.
    std::string searchedIn(const std::string& text) {
        std::string piece = text.substr(number(text.size()), number(24));
        if (!piece.empty() && number(2) == 0) {
            piece[number(piece.size() - 1)] = "aAb,"[number(3)];
        }
        return piece;
    }

private:
    std::mt19937 random_{11};
};

TEST_F(PlainSearch, IsWhatAnIndexGives) {
    for (int round = 0; round < 300; ++round) {
        const SearchIndex index(random(number(600)));
        for (int search = 0; search < 40; ++search) {
            const std::string searched = searchedIn(index.text());
            ASSERT_EQ(index.find(searched), index.text().find(searched))
                << searched << " in " << index.text();
        }
    }
}

TEST_F(PlainSearch, IsWhatASearchWithoutCaseGives) {
    const CaseRules cases;
    for (int round = 0; round < 8000; ++round) {
        const std::string text = random(number(700));
        const std::string searched = searchedIn(text);
        const std::size_t from = number(text.size());
        ASSERT_EQ(cases.find(text, searched, from), cases.upper(text).find(cases.upper(searched), from))
            << searched << " from " << from << " in " << text;
    }
}

} // namespace

} // namespace tarvelon
