#include "tests/contract/contract_fixture.h"

#include <algorithm>

namespace tarvelon {

namespace {

using namespace std::string_literals;

constexpr std::uint32_t allRights = 0xf003f;
constexpr std::uint32_t readRights = 0x20019;
constexpr std::int32_t success = 0;

constexpr std::uint32_t text = 1;

struct Answer {
    std::int32_t code;
    std::uint32_t type;
    std::uint32_t size;
    std::string buffer;
    std::string name{};
};

class RegistryContract : public Contract {
protected:
    RegistryContract() { registry.openKey(Registry::currentUser, key, allRights, opened); }
    ~RegistryContract() override { registry.closeKey(opened); }

    Answer query(Registry::Key from, const std::string& name, std::uint32_t room = 256) {
        Answer answer{-1, 0, room, std::string(room, ' ')};
        answer.code = registry.queryValue(from, name, answer.type, answer.buffer.data(), answer.size);
        return answer;
    }

    Answer enumerate(Registry::Key from, std::uint32_t index) {
        Answer answer{-1, 0, 240, std::string(240, ' '), std::string(240, '~')};
        std::uint32_t length = 240;
        answer.code =
            registry.enumValue(from, index, answer.name.data(), length, answer.buffer.data(), answer.size);
        answer.name.resize(length);
        return answer;
    }

    /// The name of a sub-key, or the code of the failure.
    std::string keyName(Registry::Key from, std::uint32_t index, std::uint32_t room = 256) {
        char name[256] = "";
        const std::int32_t code = registry.enumKey(from, index, name, room);
        return code == success ? name : std::to_string(code);
    }

    Registry& registry = platform.registry;
    const std::string key = workstation->key;
    Registry::Key opened = 0;
};

TEST_F(RegistryContract, AValueComesWholeOrTellsItsSize) {
    for (const std::uint32_t type : {text, 2u, 3u, 4u, 7u}) {
        for (const std::uint32_t length : {0u, 4u, 239u, 240u, 241u, 255u, 256u, 257u}) {
            SCOPED_TRACE(std::to_string(length) + " bytes of type " + std::to_string(type));
            std::string bytes(length, 'x');
            for (std::uint32_t at = (length - 2) % 3; at + 5 <= length; at += 3) {
                bytes.replace(at, 3, "\xe8\xa1\xa8");
            }
            bytes.replace(length - std::min(length, 2u), 2, std::string(std::min(length, 2u), '\0'));
            workstation->setValue(key, "\xd0\xb0", type, bytes);

            for (const std::uint32_t room : {256u, 240u}) {
                const Answer given = room == 256 ? query(opened, "\xd0\xb0") : enumerate(opened, 0);
                EXPECT_TRUE(given.size == length && (room == 240 || given.type == type));
                EXPECT_EQ(given.code, length <= room ? success : Registry::moreData);
                if (length <= room) {
                    EXPECT_EQ(given.buffer, bytes + std::string(room - length, ' ')) << "The rest stays";
                    EXPECT_EQ(given.name, room == 240 ? "\xd0\xb0" : "");
                }
            }
        }
    }
}

TEST_F(RegistryContract, ListingsEndAfterTheLastName) {
    const std::string longestListed(239, 'b');
    for (const std::string& name : {"A"s, longestListed, std::string(240, 'c'), "d"s}) {
        workstation->setValue(key, name, text, "x\0"s);
    }
    EXPECT_EQ(enumerate(opened, 1).name, longestListed);
    EXPECT_EQ(enumerate(opened, 2).code, Registry::moreData) << "No room for the zero";
    EXPECT_EQ(enumerate(opened, 4).code, Registry::noMoreItems);
    EXPECT_EQ(registry.deleteValue(opened, "A"), success);
    EXPECT_EQ(enumerate(opened, 0).name, longestListed) << "The others move up";

    const std::string longKey(200, 'k');
    for (const std::string& name : {longKey, "Beta"s, "alpha"s}) {
        workstation->makeKey(key + "\\" + name);
    }
    EXPECT_EQ(keyName(opened, 0), "alpha");
    EXPECT_EQ(keyName(opened, 2), longKey);
    EXPECT_EQ(keyName(opened, 3), std::to_string(Registry::noMoreItems));
    EXPECT_EQ(keyName(opened, 1, 5), "Beta");
    EXPECT_EQ(keyName(opened, 1, 4), std::to_string(Registry::moreData));
}

TEST_F(RegistryContract, NamesCountWithoutRegardToCase) {
    const bool western = platform.codePage.fromUtf16(u"\xe9").has_value(); // Else Japanese, with Cyrillic.
    const std::u16string letter = western ? u"\xe9" : u"\u0434";
    const std::u16string capital = western ? u"\xc9" : u"\u0414";
    const auto name = [this](const std::u16string& units) {
        return platform.codePage.fromUtf16(units).value();
    };
    workstation->setValue(key, name(u"Caf" + letter), text, "first\0"s);
    workstation->setValue(key, name(u"CAF" + capital), text, "second\0"s);
    workstation->setValue(key, "", text, "default\0"s);
    workstation->makeKey(key + "\\Sub");
    EXPECT_EQ(query(opened, name(u"caf" + letter), 7).buffer, "second\0"s);
    EXPECT_EQ(query(opened, "", 8).buffer, "default\0"s);
    EXPECT_EQ(registry.deleteValue(opened, name(u"cAF" + capital)), success);
    EXPECT_EQ(registry.deleteValue(opened, name(u"Caf" + letter)), Registry::fileNotFound);
    EXPECT_EQ(enumerate(opened, 0).name, "") << "The default value alone is left";

    Registry::Key sub = 0;
    EXPECT_EQ(registry.openKey(opened, "sUB\\", allRights, sub), success) << "From an open key";
    registry.closeKey(sub);
    EXPECT_EQ(platform.codePage.capitals(u"a\xe9\u0434\u3042"), u"A\xc9\u0414\u3042");
    EXPECT_EQ(platform.codePage.toUtf16(name(letter)), letter);
    EXPECT_EQ(platform.systemPage.fromUtf16(u"\xe9"), "\xe9");
    EXPECT_EQ(platform.systemPage.fromUtf16(u"\u0434"), std::nullopt) << "no letter that looks like it";
}

TEST_F(RegistryContract, WhatTheRegistryOpensAndRefuses) {
    const Registry::Key before = opened;
    EXPECT_EQ(registry.closeKey(opened), success);
    EXPECT_EQ(registry.openKey(Registry::currentUser, "missing", allRights, opened), Registry::fileNotFound);
    EXPECT_EQ(opened, 0u);
    for (const Registry::Key root : {Registry::currentUser, Registry::localMachine, Registry::classesRoot}) {
        const char* const path = root == Registry::classesRoot ? "" : "Software";
        EXPECT_EQ(registry.openKey(root, path, readRights, opened), success);
        EXPECT_EQ(registry.closeKey(opened), success);
        EXPECT_EQ(registry.closeKey(root), success);
    }
    EXPECT_EQ(registry.openKey(Registry::currentUser, key, readRights, opened), success);
    EXPECT_EQ(opened, before) << "Numbers are given out again";
    EXPECT_EQ(query(opened, "value").code, Registry::fileNotFound);
    EXPECT_EQ(keyName(opened, 0), std::to_string(Registry::noMoreItems));
    EXPECT_EQ(registry.deleteValue(opened, "value"), Registry::accessDenied);
    EXPECT_EQ(registry.closeKey(opened), success);
    for (const Registry::Key closed : {opened, Registry::Key{0}}) {
        Registry::Key none = 0;
        EXPECT_EQ(registry.openKey(closed, key, allRights, none), Registry::invalidHandle);
        EXPECT_EQ(registry.closeKey(closed), Registry::invalidHandle);
        EXPECT_EQ(query(closed, "value").code, Registry::invalidHandle);
        EXPECT_EQ(enumerate(closed, 0).code, Registry::invalidHandle);
        EXPECT_EQ(keyName(closed, 0), std::to_string(Registry::invalidHandle));
        EXPECT_EQ(registry.deleteValue(closed, "value"), Registry::invalidHandle);
    }
}

} // namespace

} // namespace tarvelon
