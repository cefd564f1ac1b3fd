#include "ui/controls/bar_chart.h"
#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

using enum Aspect;
using Aspects = std::vector<Aspect>;

/// A screen that listens to itself and remembers which aspects changed.
struct Controls : testing::Test, Screen, ScreenListener {
    Controls()
        : Screen("Test", 400, 300) {
        listener = this;
    }
    void loaded(Screen&) override {}
    void changed(Screen&, Aspect) override {}
    void changed(Control&, Aspect aspect) override { aspects.push_back(aspect); }
    Aspects told() { return std::exchange(aspects, {}); }

    Frame page{*this, at(0, 0, 400, 300)};
    OptionButton option{page, "Option", {}};
    FlatButton button{page, "Button", {}};
    FlatCheck check{page, "Check", {}};
    CheckBox plain{page, "Plain", {}};
    Picture picture{page, {}, "standby", ""};
    Label label{page, "Label", {}};
    CheckListBox list{page, {}};
    ProgressBar bar{page, {}};
    Tree tree{page, {}};
    BarChart chart{page, "Chart", 2, {}};
    Timer timer{*this, 1};
    Aspects aspects;
};

TEST_F(Controls, ListenersHearOfRealChangesOnly) {
    label.Caption = "Label";
    list.setListIndex(5);
    list.replace(5, "row");
    list.remove(5);
    list.setTicked(5, true);
    chart.mark(5);
    EXPECT_FALSE(bar.setValue(101));
    EXPECT_EQ(told(), Aspects());

    for (int again = 0; again < 2; ++again) {
        label.ForeColor = colors::scanGrey;
        check.setValue(true);
        plain.setValue(true);
        option.setValue(true);
        bar.setValue(100);
    }
    bar.setMax(50);
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(told(), (Aspects{TextColor, Value, Value, Value, Value, Value}));
    list.add("row");
    list.setListIndex(0);
    list.setTicked(0, true);
    list.replace(0, "other");
    list.remove(0);
    list.clear();
    EXPECT_EQ(told(), (Aspects{ItemAdded, Value, Value, Items, Items, Items}));
    EXPECT_TRUE(tree.addRoot("key", "text"));
    EXPECT_FALSE(tree.addChild("key", "key", "text") || tree.addChild("none", "other", "text"));
    tree.clear();
    chart.add("label", -1);
    chart.mark(0);
    chart.clear();
    EXPECT_EQ(told(), (Aspects{ItemAdded, Items, ItemAdded, Value, Items}));
}

TEST_F(Controls, NothingIsClickedInADisabledFrame) {
    int raised = 0;
    button.onClick = check.onClick = plain.onClick = label.onClick = option.onClick = list.onClick =
        picture.onClick = picture.onKeyPress = picture.onKeyClick = timer.onTick = [&] { ++raised; };
    const auto useAll = [&] {
        button.click();
        check.click();
        plain.click();
        label.click();
        option.click();
        list.select(0);
        picture.click();
        picture.keyPress();
        picture.keyClick();
        timer.tick();
        return std::exchange(raised, 0);
    };
    EXPECT_EQ(useAll(), 9) << "timers start disabled";
    page.Enabled = false;
    timer.Enabled = true;
    EXPECT_EQ(useAll(), 1) << "only the timer";
    EXPECT_EQ(check.value(), 1);
}

TEST_F(Controls, FlatOnesShowThePressAndTheMouse) {
    for (const auto leave : {&FlatButton::mouseMove, &FlatButton::mouseUp}) {
        button.mouseDown();
        EXPECT_EQ(button.foreColor(), colors::white);
        (button.*leave)();
        EXPECT_EQ(button.foreColor(), colors::black);
    }
    check.mouseMoveLabel();
    EXPECT_TRUE(check.hovered());
    check.mouseMoveBox();
    EXPECT_EQ(told(), Aspects(6, TextColor));
    button.Enabled = false;
    button.mouseDown();
    EXPECT_EQ(button.foreColor(), colors::white);
    button.Enabled = true;
    EXPECT_EQ(button.foreColor(), colors::black) << "it was not pressed";
}

} // namespace
} // namespace tarvelon
