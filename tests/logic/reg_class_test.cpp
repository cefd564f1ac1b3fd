#include "regwatch/reg_class.h"

#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

TEST(RegClassTest, OneKeyIsOpenAtATime) {
    using Names = std::vector<std::string>;
    constexpr Registry::Key root = Registry::currentUser;
    const std::string path = "Software\\Watched";
    SimWorkstation pc;
    SimRegistry& registry = pc.registry;
    registry.setValue(root, path, "value", {SimRegistry::Text, "unended"});
    registry.makeKey(root, path + "\\Beta\\Below");
    registry.makeKey(root, path + "\\" + std::string(255, 'a'));
    {
        RegClass key(registry);
        EXPECT_FALSE(key.CloseRegistry()) << "Never opened";
        ASSERT_TRUE(key.OpenRegistry(Registry::localMachine, "Software"));
        ASSERT_TRUE(key.OpenRegistry(root, path));
        EXPECT_EQ(registry.openKeys(), 1u) << "The one before is closed";
        EXPECT_EQ(key.GetAllSubDirectories(), (Names{std::string(255, 'a'), "Beta"}));
        EXPECT_EQ(key.GetValue("VALUE"), "unende") << "A text's last byte is its zero";
        pc.faults.failNth(Operation::CloseKey, 1);
        EXPECT_FALSE(key.CloseRegistry());
        EXPECT_NE(key.GetAllValues(), std::nullopt) << "Still open";
        EXPECT_FALSE(key.OpenRegistry(0, "other"));
        EXPECT_EQ(key.RegistryRootKey(), root);
        EXPECT_EQ(key.SubDirectory(), path);
        EXPECT_EQ(key.GetValue("value"), "");
        EXPECT_EQ(key.GetAllSubDirectories(), std::nullopt);
        EXPECT_TRUE(key.CloseRegistry());
        registry.deny(root, path, SimRegistry::setRight);
        EXPECT_FALSE(key.OpenRegistry(root, path)) << "Reading alone would be allowed";
        EXPECT_TRUE(key.OpenRegistry(root, "Software"));
    }
    EXPECT_EQ(registry.openKeys(), 0u) << "Closed at the object's end";
}

} // namespace
} // namespace tarvelon
