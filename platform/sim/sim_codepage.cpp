#include "platform/sim/sim_codepage.h"

namespace tarvelon {

namespace {

// The capitals that stand 32 places in front of their small letters: A to Z, and 0xC0 to 0xDE without the
// multiplication sign.
bool isCapitalByRule(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 0xc0 && c <= 0xde && c != 0xd7);
}

// The letters outside that rule.
struct Pair {
    unsigned char capital;
    unsigned char small;
};
constexpr Pair exceptions[] = {{0x8a, 0x9a}, {0x8c, 0x9c}, {0x8e, 0x9e}, {0x9f, 0xff}};

} // namespace

unsigned char SimCodePage::upper(unsigned char character) {
    for (const Pair& pair : exceptions) {
        if (character == pair.small) {
            return pair.capital;
        }
    }
    const auto capital = static_cast<unsigned char>(character - 32);
    return character >= 32 && isCapitalByRule(capital) ? capital : character;
}

unsigned char SimCodePage::lower(unsigned char character) {
    for (const Pair& pair : exceptions) {
        if (character == pair.capital) {
            return pair.small;
        }
    }
    return isCapitalByRule(character) ? static_cast<unsigned char>(character + 32) : character;
}

std::string SimCodePage::capitals(std::string text) {
    for (char& character : text) {
        character = static_cast<char>(SimCodePage().upper(static_cast<unsigned char>(character)));
    }
    return text;
}

} // namespace tarvelon
