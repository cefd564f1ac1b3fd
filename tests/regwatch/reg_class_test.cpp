#include "regwatch/reg_class.h"

#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr Registry::Key root = Registry::currentUser;
const std::string path = "Software\\Watched";

class RegClassTest : public testing::Test {
protected:
    RegClassTest() { registry.makeKey(root, path); }

    void set(const std::string& name, std::uint32_t type, const std::string& bytes) {
        registry.setValue(root, path, name, {type, bytes});
    }

    /// What a fresh object reads of a value of this type and these bytes.
    std::string read(std::uint32_t type, const std::string& bytes) {
        set("value", type, bytes);
        RegClass reader(registry);
        EXPECT_TRUE(reader.OpenRegistry(root, path));
        return reader.GetValue("VALUE");
    }

    SimWorkstation workstation;
    SimRegistry& registry = workstation.registry;
    RegClass key{registry};
};

TEST_F(RegClassTest, TextsLoseTheirLastByte) {
    EXPECT_EQ(read(SimRegistry::Text, std::string("C:\\A b.exe", 11)), "C:\\A b.exe");
    EXPECT_EQ(read(SimRegistry::Text, std::string(1, '\0')), "");
    EXPECT_EQ(read(SimRegistry::Text, ""), "");
    EXPECT_EQ(read(SimRegistry::Text, "unended"), "unende");
    const std::string inside("one\0two", 7);
    EXPECT_EQ(read(SimRegistry::Text, inside + '\0'), inside);
    EXPECT_EQ(read(SimRegistry::Text, std::string(255, 'x') + '\0'), std::string(255, 'x'));
    EXPECT_EQ(read(SimRegistry::Text, std::string(256, 'x') + '\0'), "") << "257 bytes";
}

TEST_F(RegClassTest, BinaryDataIsPaddedOnlyWhereItReadsAsANumber) {
    EXPECT_EQ(read(SimRegistry::Binary, "\x0a\x10\x99"), "A 10 ");
    EXPECT_EQ(read(SimRegistry::Binary, std::string("\0\x05\x09\x0f\x1f\x1e\x80\xff!", 9)),
              "00 05 09 F 1F 1E 80 FF ");
    EXPECT_EQ(read(SimRegistry::Binary, "x"), "");
    EXPECT_EQ(read(SimRegistry::Binary, ""), "");
    EXPECT_EQ(read(SimRegistry::Binary, std::string(256, '\x42')).size(), 255u * 3);
    EXPECT_EQ(read(SimRegistry::Binary, std::string(257, '\x42')), "");
}

TEST_F(RegClassTest, OtherTypesAreTheWholeBuffer) {
    const std::string number("\1\0\0\0", 4);
    EXPECT_EQ(read(SimRegistry::Number, number), number + std::string(252, ' '));
    const std::string list("a\0b\0\0", 5);
    EXPECT_EQ(read(SimRegistry::TextList, list), list + std::string(251, ' '));
    EXPECT_EQ(read(SimRegistry::ExpandableText, std::string("%A%", 4)),
              std::string("%A%", 4) + std::string(252, ' '));
    EXPECT_EQ(read(SimRegistry::ExpandableText, std::string(256, 'x')), std::string(256, 'x'));
    EXPECT_EQ(read(SimRegistry::ExpandableText, std::string(257, 'x')), "");
    EXPECT_EQ(read(SimRegistry::None, ""), std::string(256, ' '));
}

TEST_F(RegClassTest, AValueThatDoesNotFitEndsTheList) {
    ASSERT_TRUE(key.OpenRegistry(root, path));
    EXPECT_THAT(key.GetAllValues(), Optional(IsEmpty()));
    EXPECT_THAT(key.GetAllSubDirectories(), Optional(IsEmpty()));

    set("first", SimRegistry::Binary, std::string(240, 'x'));
    set("second", SimRegistry::Binary, std::string(241, 'x'));
    set("", SimRegistry::Binary, "x");
    EXPECT_THAT(key.GetAllValues(), Optional(ElementsAre("first")));
    set("second", SimRegistry::Text, std::string("x", 2));
    EXPECT_THAT(key.GetAllValues(), Optional(ElementsAre("first", "second", "")));
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
    std::uint32_t count = 0;

    std::int32_t enumKey(Key, std::uint32_t index, char* name, std::uint32_t) override {
        name[0] = '\0';
        return index < count ? 0 : noMoreItems;
    }
};

TEST_F(RegClassTest, AListThatTheIndexCannotCountIsLost) {
    EndlessRegistry endless(workstation.faults);
    RegClass counter(endless);
    ASSERT_TRUE(counter.OpenRegistry(root, ""));
    endless.count = 32'767;
    EXPECT_THAT(counter.GetAllSubDirectories(), Optional(testing::SizeIs(32'767)));
    endless.count = 32'768;
    EXPECT_EQ(counter.GetAllSubDirectories(), std::nullopt);
}

TEST_F(RegClassTest, OneKeyIsOpenAtATime) {
    set("value", SimRegistry::Text, std::string("x", 2));
    EXPECT_EQ(key.RegistryRootKey(), 0u);
    EXPECT_EQ(key.SubDirectory(), "");
    EXPECT_TRUE(key.OpenRegistry(root, path));
    EXPECT_TRUE(key.OpenRegistry(Registry::localMachine, "Software"));
    EXPECT_EQ(registry.openKeys(), 1u) << "The one before is closed";

    EXPECT_FALSE(key.OpenRegistry(root, "missing"));
    EXPECT_EQ(key.RegistryRootKey(), root);
    EXPECT_EQ(key.SubDirectory(), "missing") << "Kept even so";
    EXPECT_EQ(registry.openKeys(), 0u);
    RegClass stranger(registry);
    EXPECT_TRUE(stranger.OpenRegistry(root, path));
    EXPECT_FALSE(key.CloseRegistry());
    EXPECT_EQ(registry.openKeys(), 1u) << "Whoever has the closed key's number by now";
    stranger.CloseRegistry();

    EXPECT_TRUE(key.OpenRegistry(root, path));
    EXPECT_FALSE(key.OpenRegistry(0, "other"));
    EXPECT_EQ(key.RegistryRootKey(), root);
    EXPECT_EQ(key.SubDirectory(), path);
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
        EXPECT_FALSE(closed.CloseRegistry());
        EXPECT_EQ(workstation.faults.calls(Operation::CloseKey), 4);
    }
    EXPECT_EQ(workstation.faults.calls(Operation::CloseKey), 5) << "Once more at the object's end";
    {
        RegClass open(registry);
        ASSERT_TRUE(open.OpenRegistry(root, path));
    }
    EXPECT_EQ(registry.openKeys(), 0u);
}

TEST_F(RegClassTest, DeletingNeverTellsWhetherItWorked) {
    EXPECT_FALSE(key.DeleteKey("value"));
    EXPECT_EQ(workstation.faults.calls(Operation::DeleteValue), 1) << "Asked for without an open key";

    set("value", SimRegistry::Text, std::string("x", 2));
    registry.makeKey(root, path + "\\value");
    ASSERT_TRUE(key.OpenRegistry(root, path));
    EXPECT_FALSE(key.DeleteKey("Value"));
    EXPECT_THAT(key.GetAllValues(), Optional(IsEmpty()));
    EXPECT_THAT(key.GetAllSubDirectories(), Optional(ElementsAre("value"))) << "Keys stay";
}

} // namespace

} // namespace tarvelon
