#include "ui/controls/bar_chart.h"
#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {
namespace {

using testing::ElementsAre;

/// A screen that listens to itself and remembers which aspects changed.
struct Controls : testing::Test, Screen, ScreenListener {
    Controls()
        : Screen("Test", 400, 300) {
        listener = this;
    }
    void loaded(Screen&) override {}
    void changed(Screen&, Aspect aspect) override { aspects.push_back(aspect); }
    void changed(Control&, Aspect aspect) override { aspects.push_back(aspect); }
    std::vector<Aspect> take() { return std::exchange(aspects, {}); }

    Frame page{*this, at(0, 0, 400, 300)};
    OptionButton option{page, "Option", at(8, 100, 100, 20)};
    FlatButton button{page, "Button", at(8, 130, 80, 24)};
    FlatCheck check{page, "Check", at(8, 160, 80, 20)};
    CheckBox plain{page, "Plain", at(8, 184, 80, 20)};
    Picture picture{page, at(8, 40, 80, 20), "standby", ""};
    Label label{page, "Label", at(8, 208, 80, 20)};
    TextBox text{page, at(8, 232, 80, 20)};
    ListBox list{page, at(220, 8, 150, 200)};
    ProgressBar bar{page, at(220, 220, 150, 16)};
    Tree tree{page, at(220, 240, 80, 16)};
    BarChart chart{page, "Chart", 2, at(220, 260, 80, 16)};
    Timer timer{*this, 1};
    std::vector<Aspect> aspects;
};

TEST_F(Controls, ListenersHearOfRealChangesOnly) {
    label.Caption = "Label";
    label.Visible = true;
    check.setValue(false);
    bar.setValue(0);
    list.setListIndex(5);
    list.replace(5, "row");
    EXPECT_FALSE(bar.setValue(101));
    EXPECT_EQ(take(), std::vector<Aspect>());

    label.Caption = "1";
    label.ForeColor = colors::scanGrey;
    button.Enabled = false;
    check.setValue(true);
    plain.setValue(true);
    option.setValue(true);
    EXPECT_TRUE(bar.setValue(100));
    list.add("row");
    EXPECT_EQ(list.item(1), "");
    list.setListIndex(0);
    list.replace(0, "other");
    list.remove(0);
    list.clear();
    EXPECT_TRUE(tree.addRoot("key", "text"));
    tree.clear();
    chart.add("label", 1);
    chart.mark(0);
    chart.clear();
    using enum Aspect;
    EXPECT_THAT(take(), ElementsAre(Aspect::Caption, TextColor, Aspect::Enabled, Value, Value, Value, Value,
                                    ItemAdded, Value, Items, Items, Items, ItemAdded, Items, ItemAdded, Value,
                                    Items));
}

TEST_F(Controls, DisabledControlsRaiseNothing) {
    int clicks = 0;
    button.onClick = check.onClick = plain.onClick = label.onClick = option.onClick = [&] { ++clicks; };
    text.onChange = timer.onTick = picture.onKeyPress = picture.onKeyClick = [&] { ++clicks; };
    const auto useAll = [&] {
        button.click();
        check.click();
        plain.click();
        label.click();
        option.click();
        picture.keyPress();
        picture.keyClick();
        timer.tick();
        text.typed("text");
        return std::exchange(clicks, 0);
    };
    EXPECT_EQ(useAll(), 8) << "Timers start disabled";
    for (const bool frameIs : {true, false}) {
        for (Control* control : controls()) {
            control->Enabled = (control->kind() == ControlKind::Frame) == frameIs;
        }
        EXPECT_EQ(useAll(), frameIs ? 1 : 2) << "A disabled frame disables what stands in it, but no timer";
    }
    EXPECT_EQ(check.value(), 1);
}

TEST_F(Controls, FlatButtonIsWhiteWhilePressedOrDisabled) {
    for (const auto leave : {&FlatButton::mouseMove, &FlatButton::mouseUp}) {
        button.mouseDown();
        button.downStatus(1);
        EXPECT_EQ(button.foreColor(), colors::white);
        (button.*leave)();
        EXPECT_EQ(button.foreColor(), colors::black);
    }
    EXPECT_THAT(take(), testing::SizeIs(4));
    button.Enabled = false;
    button.mouseDown();
    EXPECT_EQ(button.foreColor(), colors::white);
    button.Enabled = true;
    EXPECT_EQ(button.foreColor(), colors::black);
}

TEST_F(Controls, FlatCheckHoversAndFlips) {
    for (const auto leave :
         {+[](FlatCheck& it) { it.downStatus(1); }, +[](FlatCheck& it) { it.mouseMoveBox(); }}) {
        check.mouseMoveLabel();
        EXPECT_TRUE(check.hovered());
        leave(check);
        EXPECT_FALSE(check.hovered());
    }
    EXPECT_THAT(take(), testing::SizeIs(4));
    check.onClick = [&] { EXPECT_EQ(check.value(), 1) << "Flipped before the event"; };
    check.click();
}

} // namespace
} // namespace tarvelon
