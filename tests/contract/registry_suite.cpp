#include "tests/contract/contract_fixture.h"

namespace tarvelon {

namespace {

constexpr std::uint32_t allRights = 0xf003f;
constexpr std::uint32_t readRights = 0x20019;
constexpr std::int32_t success = 0;

constexpr std::uint32_t text = 1;
constexpr std::uint32_t expandableText = 2;
constexpr std::uint32_t binary = 3;
constexpr std::uint32_t number = 4;
constexpr std::uint32_t textList = 7;

struct Answer {
    std::int32_t code = -1;
    std::uint32_t type = 0;
    std::uint32_t nameSize = 0;
    std::uint32_t size = 0;
    std::string name;
    std::string buffer;
};

/// A value of that many bytes that is well formed for its type.
std::string bytesOf(std::uint32_t type, std::size_t count) {
    std::string bytes(count, 'x');
    if (type == binary || type == number) {
        for (std::size_t at = 0; at < count; ++at) {
            bytes[at] = static_cast<char>(at);
        }
        return bytes;
    }
    bytes.back() = '\0';
    if (type == textList) {
        bytes[3] = bytes[count - 2] = '\0';
    }
    return bytes;
}

class RegistryContract : public Contract {
protected:
    Registry::Key open(std::uint32_t rights = allRights) {
        Registry::Key opened = 0;
        EXPECT_EQ(registry.openKey(Registry::currentUser, key, rights, opened), success);
        return opened;
    }

    Answer query(Registry::Key from, const std::string& name, std::uint32_t room = 256) {
        Answer answer;
        answer.size = room;
        answer.buffer.assign(room, ' ');
        answer.code = registry.queryValue(from, name, answer.type, answer.buffer.data(), answer.size);
        return answer;
    }

    Answer enumerate(Registry::Key from, std::uint32_t index, std::uint32_t room = 240) {
        Answer answer;
        answer.nameSize = 240;
        answer.size = room;
        answer.buffer.assign(room, ' ');
        char name[240] = "";
        answer.code =
            registry.enumValue(from, index, name, answer.nameSize, answer.buffer.data(), answer.size);
        answer.name = name;
        return answer;
    }

    std::string keyName(Registry::Key from, std::uint32_t index) {
        char name[256] = "";
        const std::int32_t code = registry.enumKey(from, index, name, sizeof name);
        return code == success ? name : std::to_string(code);
    }

    Registry& registry = platform.registry;
    const std::string key = workstation->emptyKey();
};

TEST_F(RegistryContract, AValueComesWholeOrTellsItsSize) {
    const Registry::Key opened = open();
    for (const std::uint32_t type : {text, expandableText, binary, number, textList}) {
        for (const std::uint32_t length : {239u, 240u, 241u, 255u, 256u, 257u, 300u}) {
            SCOPED_TRACE(std::to_string(length) + " bytes of type " + std::to_string(type));
            const std::string bytes = bytesOf(type, length);
            workstation->setValue(key, "value", type, bytes);

            const Answer asked = query(opened, "value");
            EXPECT_EQ(asked.code, length <= 256 ? success : Registry::moreData);
            EXPECT_EQ(asked.type, type);
            EXPECT_EQ(asked.size, length);
            if (length <= 256) {
                EXPECT_EQ(asked.buffer, bytes + std::string(256 - length, ' ')) << "The rest stays as it was";
            }
            const Answer listed = enumerate(opened, 0);
            EXPECT_EQ(listed.code, length <= 240 ? success : Registry::moreData);
            EXPECT_EQ(listed.size, length);
            if (length <= 240) {
                EXPECT_EQ(listed.name, "value");
                EXPECT_EQ(listed.nameSize, 5u);
                EXPECT_EQ(listed.buffer, bytes + std::string(240 - length, ' '));
            }
        }
    }
    workstation->setValue(key, "value", number, std::string("\1\0\0\0", 4));
    EXPECT_EQ(query(opened, "value").buffer, std::string("\1\0\0\0", 4) + std::string(252, ' '));
    workstation->setValue(key, "value", binary, "");
    EXPECT_EQ(query(opened, "value").size, 0u);
    registry.closeKey(opened);
}

TEST_F(RegistryContract, ListingsEndAfterTheLastName) {
    const Registry::Key opened = open();
    EXPECT_EQ(enumerate(opened, 0).code, Registry::noMoreItems);
    EXPECT_EQ(keyName(opened, 0), "259");

    const std::string longestListed(239, 'b');
    const std::string tooLong(240, 'c');
    for (const std::string& name : {std::string("A"), longestListed, tooLong, std::string("d")}) {
        workstation->setValue(key, name, text, std::string("x", 2));
    }
    EXPECT_EQ(enumerate(opened, 0).name, "A");
    EXPECT_EQ(enumerate(opened, 1).name, longestListed);
    EXPECT_EQ(enumerate(opened, 2).code, Registry::moreData) << "No room for the zero";
    EXPECT_EQ(enumerate(opened, 3).name, "d");
    EXPECT_EQ(enumerate(opened, 4).code, Registry::noMoreItems);
    EXPECT_EQ(registry.deleteValue(opened, "A"), success);
    EXPECT_EQ(enumerate(opened, 0).name, longestListed) << "The others move up";

    const std::string longKey(200, 'k');
    for (const std::string& name : {longKey, std::string("Beta"), std::string("alpha")}) {
        workstation->makeKey(key + "\\" + name);
    }
    EXPECT_EQ(keyName(opened, 0), "alpha");
    EXPECT_EQ(keyName(opened, 1), "Beta");
    EXPECT_EQ(keyName(opened, 2), longKey);
    EXPECT_EQ(keyName(opened, 3), "259");
    char small[5];
    EXPECT_EQ(registry.enumKey(opened, 1, small, 5), success);
    EXPECT_EQ(registry.enumKey(opened, 1, small, 4), Registry::moreData);
    registry.closeKey(opened);
}

TEST_F(RegistryContract, NamesCountWithoutRegardToCase) {
    workstation->setValue(key, "Caf\xe9", text, std::string("first", 6));
    workstation->setValue(key, "CAF\xc9", text, std::string("second", 7));
    workstation->setValue(key, "", text, std::string("default", 8));
    workstation->makeKey(key + "\\Sub");

    const Registry::Key opened = open();
    EXPECT_EQ(query(opened, "caf\xe9", 7).buffer, std::string("second", 7));
    EXPECT_EQ(query(opened, "", 8).buffer, std::string("default", 8));
    EXPECT_EQ(query(opened, "other").code, Registry::fileNotFound);
    EXPECT_EQ(registry.deleteValue(opened, "cAF\xc9"), success);
    EXPECT_EQ(registry.deleteValue(opened, "Caf\xe9"), Registry::fileNotFound);
    EXPECT_EQ(enumerate(opened, 0).name, "") << "The default value alone is left";
    EXPECT_EQ(enumerate(opened, 1).code, Registry::noMoreItems);

    Registry::Key sub = 0;
    EXPECT_EQ(registry.openKey(opened, "sUB\\", allRights, sub), success) << "From an open key";
    EXPECT_EQ(registry.closeKey(sub), success);
    registry.closeKey(opened);
}

TEST_F(RegistryContract, WhatTheRegistryRefuses) {
    workstation->setValue(key, "value", text, std::string("x", 2));
    Registry::Key opened = 77;
    EXPECT_EQ(registry.openKey(Registry::currentUser, key + "\\missing", allRights, opened),
              Registry::fileNotFound);
    EXPECT_EQ(opened, 0u);
    EXPECT_EQ(registry.openKey(0, key, allRights, opened), Registry::invalidHandle);
    EXPECT_EQ(registry.closeKey(0), Registry::invalidHandle);
    EXPECT_EQ(registry.deleteValue(0, "value"), Registry::invalidHandle);

    opened = open(readRights);
    EXPECT_EQ(query(opened, "value").code, success);
    EXPECT_EQ(enumerate(opened, 0).code, success);
    EXPECT_EQ(keyName(opened, 0), "259");
    EXPECT_EQ(registry.deleteValue(opened, "value"), Registry::accessDenied);

    EXPECT_EQ(registry.closeKey(opened), success);
    EXPECT_EQ(registry.closeKey(opened), Registry::invalidHandle) << "Closed already";
    EXPECT_EQ(query(opened, "value").code, Registry::invalidHandle);
    EXPECT_EQ(enumerate(opened, 0).code, Registry::invalidHandle);
    EXPECT_EQ(keyName(opened, 0), "6");
    EXPECT_EQ(registry.deleteValue(opened, "value"), Registry::invalidHandle);
}

TEST_F(RegistryContract, TheRootsOpen) {
    for (const Registry::Key root : {Registry::currentUser, Registry::localMachine}) {
        Registry::Key software = 0;
        EXPECT_EQ(registry.openKey(root, "Software", readRights, software), success);
        EXPECT_EQ(registry.closeKey(software), success);
        EXPECT_EQ(registry.closeKey(root), success);
    }
    Registry::Key classes = 0;
    EXPECT_EQ(registry.openKey(Registry::classesRoot, "", readRights, classes), success);
    EXPECT_EQ(registry.closeKey(classes), success);
}

} // namespace

} // namespace tarvelon
