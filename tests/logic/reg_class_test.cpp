#include "regwatch/reg_class.h"

#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using namespace std::string_literals;

constexpr Registry::Key root = Registry::currentUser;
const std::string path = "Software\\Watched";

class RegClassTest : public testing::Test {
protected:
    RegClassTest() { registry.makeKey(root, path); }

    void set(const std::string& name, std::uint32_t type, const std::string& bytes) {
        registry.setValue(root, path, name, {type, bytes});
    }

    SimWorkstation workstation;
    SimRegistry& registry = workstation.registry;
    RegClass key{registry};
};

TEST_F(RegClassTest, AValueIsReadAsItsTypeAsks) {
    struct Value {
        std::uint32_t type;
        std::string bytes, read;
    };
    const auto filled = [](std::string text) { return text + std::string(256 - text.size(), ' '); };
    const std::string number = "\1\0\0\0"s, list = "a\0b\0\0"s, most(256, 'x'), tooMany(257, 'x');
    using Sim = SimRegistry;
    for (const auto& [type, bytes, read] : {
             Value{Sim::Text, "C:\\A b.exe\0"s, "C:\\A b.exe"},
             {Sim::Text, "", ""},
             {Sim::Text, "unended", "unende"},
             {Sim::Text, "one\0two\0"s, "one\0two"s},
             {Sim::Text, most, most.substr(1)},
             {Sim::Text, tooMany, ""},
             // Padded only where it reads as a number.
             {Sim::Binary, "\0\x05\x09\x0a\x0f\x10\x1f\x80\xff!"s, "00 05 09 A F 10 1F 80 FF "},
             {Sim::Binary, "x", ""},
             {Sim::Binary, "", ""},
             // All others are the whole buffer.
             {Sim::Number, number, filled(number)},
             {Sim::TextList, list, filled(list)},
             {Sim::ExpandableText, most, most},
             {Sim::None, "", filled("")},
         }) {
        set("value", type, bytes);
        ASSERT_TRUE(key.OpenRegistry(root, path));
        EXPECT_EQ(key.GetValue("VALUE"), read) << type << " " << bytes;
    }
}

TEST_F(RegClassTest, AValueThatDoesNotFitEndsTheList) {
    ASSERT_TRUE(key.OpenRegistry(root, path));
    EXPECT_THAT(key.GetAllSubDirectories(), Optional(IsEmpty()));
    set("first", SimRegistry::Binary, std::string(240, 'x'));
    set("second", SimRegistry::Binary, std::string(241, 'x'));
    set("", SimRegistry::Binary, "x");
    EXPECT_THAT(key.GetAllValues(), Optional(ElementsAre("first")));
    set("second", SimRegistry::Text, "x");
    set(std::string(239, 'n'), SimRegistry::Binary, "x");
    set(std::string(240, 'n'), SimRegistry::Binary, "x");
    EXPECT_THAT(key.GetAllValues(), Optional(ElementsAre("first", "second", "", std::string(239, 'n'))));
    registry.makeKey(root, path + "\\Beta\\Below");
    registry.makeKey(root, path + "\\" + std::string(255, 'a'));
    EXPECT_THAT(key.GetAllSubDirectories(), Optional(ElementsAre(std::string(255, 'a'), "Beta")));
}

/// As many names as it is told, without the time that a real store of them takes.
class EndlessRegistry : public SimRegistry {
public:
    using SimRegistry::SimRegistry;
    std::uint32_t count = 32'767;

    std::int32_t enumKey(Key, std::uint32_t index, char* name, std::uint32_t) override {
        name[0] = '\0';
        return index < count ? 0 : noMoreItems;
    }
};

TEST_F(RegClassTest, AListThatTheIndexCannotCountIsLost) {
    EndlessRegistry endless(workstation.faults);
    RegClass counter(endless);
    ASSERT_TRUE(counter.OpenRegistry(root, ""));
    EXPECT_THAT(counter.GetAllSubDirectories(), Optional(testing::SizeIs(32'767)));
    endless.count = 32'768;
    EXPECT_EQ(counter.GetAllSubDirectories(), std::nullopt);
}

TEST_F(RegClassTest, OneKeyIsOpenAtATime) {
    ASSERT_TRUE(key.OpenRegistry(root, path));
    ASSERT_TRUE(key.OpenRegistry(Registry::localMachine, "Software"));
    EXPECT_EQ(registry.openKeys(), 1u) << "The one before is closed";
    EXPECT_FALSE(key.OpenRegistry(root, "missing"));
    EXPECT_EQ(registry.openKeys(), 0u);
    EXPECT_EQ(key.SubDirectory(), "missing") << "Kept even so";
    RegClass stranger(registry);
    ASSERT_TRUE(stranger.OpenRegistry(root, path));
    EXPECT_FALSE(key.CloseRegistry());
    EXPECT_EQ(registry.openKeys(), 1u) << "Whoever has the closed key's number by now";
    stranger.CloseRegistry();
    ASSERT_TRUE(key.OpenRegistry(root, path));
    EXPECT_FALSE(key.OpenRegistry(0, "other"));
    EXPECT_EQ(key.RegistryRootKey(), root);
    EXPECT_EQ(key.SubDirectory(), path);
    set("value", SimRegistry::Text, "x\0"s);
    EXPECT_EQ(key.GetValue("value"), "");
    EXPECT_EQ(key.GetAllValues(), std::nullopt);
    EXPECT_EQ(key.GetAllSubDirectories(), std::nullopt);
    registry.deny(root, path, SimRegistry::setRight);
    EXPECT_FALSE(key.OpenRegistry(root, path)) << "Reading alone would be allowed";
}

TEST_F(RegClassTest, ClosingAsOftenAsItComes) {
    {
        RegClass closed(registry);
        EXPECT_FALSE(closed.CloseRegistry()) << "Never opened";
        ASSERT_TRUE(closed.OpenRegistry(root, path));
        workstation.faults.failNth(Operation::CloseKey, 1);
        EXPECT_FALSE(closed.CloseRegistry());
        EXPECT_NE(closed.GetAllValues(), std::nullopt) << "Still open";
        EXPECT_TRUE(closed.CloseRegistry());
        EXPECT_EQ(closed.GetAllValues(), std::nullopt);
        ASSERT_TRUE(closed.OpenRegistry(root, path));
    }
    EXPECT_EQ(registry.openKeys(), 0u) << "Once more at the object's end";
}

} // namespace
} // namespace tarvelon
