#include "regwatch/reg_class.h"

#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

TEST(RegClassTest, OneKeyIsOpenAtATime) {
    constexpr Registry::Key root = Registry::currentUser;
    SimWorkstation pc;
    SimRegistry& registry = pc.registry;
    registry.setValue(root, "Watched", "value", {SimRegistry::Text, "unended"});
    registry.makeKey(root, "Watched\\" + std::string(255, 'a'));
    {
        RegClass key(registry);
        ASSERT_TRUE(key.OpenRegistry(Registry::localMachine, "Software"));
        ASSERT_TRUE(key.OpenRegistry(root, "Watched"));
        EXPECT_EQ(registry.openKeys(), 1u) << "The one before is closed";
        EXPECT_EQ(key.GetAllSubDirectories(), std::vector<std::string>{std::string(255, 'a')});
        EXPECT_EQ(key.GetValue("VALUE"), "unende") << "A text's last byte is its zero";
        pc.faults.failNth(Operation::CloseKey, 1);
        EXPECT_FALSE(key.CloseRegistry());
        EXPECT_TRUE(key.GetAllValues()) << "Still open";
        EXPECT_FALSE(key.OpenRegistry(0, "other"));
        EXPECT_EQ(key.RegistryRootKey(), root);
        EXPECT_EQ(key.SubDirectory(), "Watched");
        EXPECT_FALSE(key.GetAllSubDirectories() || key.GetAllValues());
        EXPECT_TRUE(key.CloseRegistry());
        registry.deny(root, "Watched", SimRegistry::setRight);
        EXPECT_FALSE(key.OpenRegistry(root, "Watched")) << "Reading alone would be allowed";
        EXPECT_TRUE(key.OpenRegistry(Registry::localMachine, "Software"));
    }
    EXPECT_EQ(registry.openKeys(), 0u) << "Closed at the object's end";
}

} // namespace
} // namespace tarvelon
