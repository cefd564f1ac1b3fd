#include "platform/sim/workstation.h"
#include "ui/controls/bar_chart.h"
#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

/// A screen and what listens to it.
struct Controls : testing::Test, Screen {
    Controls()
        : Screen("Test", 400, 300) {
        pc.attach(*this);
    }

    /// How many changes were told of since it was asked last.
    int told() { return pc.view.changes() - std::exchange(before, pc.view.changes()); }

    SimWorkstation pc;
    int before = 0;
    Frame page{*this, at(0, 0, 400, 300)};
    OptionButton option{page, "Option", {}};
    cButton button{page, "Button", {}};
    tarvelon::check check{page, "Check", {}};
    CheckBox plain{page, "Plain", {}};
    Picture picture{page, {}, "standby", ""};
    Label label{page, "Label", {}};
    CheckListBox list{page, {}};
    ProgressBar bar{page, {}};
    Tree tree{page, {}};
    BarChart chart{page, "Chart", 2, {}};
    Timer timer{*this, 1};
};

TEST_F(Controls, ListenersHearOfRealChangesOnly) {
    label.Caption = "Label";
    list.setListIndex(5);
    list.replace(5, "row");
    list.setTicked(5, true);
    chart.mark(5);
    EXPECT_FALSE(bar.setValue(101));
    EXPECT_EQ(told(), 0);

    for (int again = 0; again < 2; ++again) {
        label.ForeColor = colors::scanGrey;
        check.setValue(true);
        plain.setValue(true);
        option.setValue(true);
        EXPECT_TRUE(bar.setValue(100));
    }
    bar.setMax(50);
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(told(), 6);
    list.add("row");
    list.add("last");
    list.setTicked(1, true);
    list.replace(1, "other");
    list.setListIndex(0);
    EXPECT_EQ(list.text(), "row");
    list.clear();
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(told(), 6);
    EXPECT_TRUE(tree.addRoot("key", "text"));
    EXPECT_FALSE(tree.addChild("key", "key", "text") || tree.addChild("none", "other", "text"));
    tree.clickNode(*tree.find("key"));
    tree.clear();
    EXPECT_EQ(tree.selected(), nullptr);
    chart.add("label", -1);
    chart.mark(0);
    chart.clear();
    EXPECT_EQ(told(), 5);
}

TEST_F(Controls, NothingIsClickedInADisabledFrame) {
    int raised = 0;
    button.onClick = check.onClick = plain.onClick = label.onClick = option.onClick = list.onClick =
        picture.onClick = picture.onKeyPress = picture.onKeyClick = timer.onTick = [&] { ++raised; };
    for (const bool enabled : {true, false}) {
        page.Enabled = enabled;
        raised = 0;
        std::apply([](auto&... all) { (all.click(), ...); }, std::tie(button, check, plain, label, option));
        list.select(0);
        picture.click();
        picture.keyPress();
        picture.keyClick();
        timer.tick();
        EXPECT_EQ(raised, enabled ? 9 : 1) << "timers start disabled, and stand in no frame";
        timer.Enabled = true;
    }
    EXPECT_EQ(check.value(), 1);
}

} // namespace
} // namespace tarvelon
