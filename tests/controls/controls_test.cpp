#include "ui/controls/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {

namespace {

using testing::ElementsAre;

struct TestScreen : Screen {
    TestScreen()
        : Screen("Test", 400, 300) {}

    Frame page{*this, at(0, 0, 400, 300)};
    Frame choices{page, "Choices", at(8, 8, 200, 80)};
    OptionButton first{choices, "First", at(8, 8, 100, 20)};
    OptionButton second{choices, "Second", at(8, 32, 100, 20)};
    OptionButton elsewhere{page, "Elsewhere", at(8, 100, 100, 20)};
    FlatButton button{page, "Button", at(8, 130, 80, 24)};
    FlatCheck check{page, "Check", at(8, 160, 80, 20)};
    CheckBox plain{page, "Plain", at(8, 184, 80, 20)};
    Label label{page, "Label", at(8, 208, 80, 20)};
    ListBox list{page, at(220, 8, 150, 200)};
    ProgressBar bar{page, at(220, 220, 150, 16)};
    Timer timer{*this, 1};
};

/// Remembers which aspects changed.
class Changes : public ScreenListener {
public:
    explicit Changes(Screen& screen) { screen.listener = this; }

    void loaded(Screen&) override { ++loads; }
    void changed(Screen&, Aspect aspect) override { aspects.push_back(aspect); }
    void changed(Control&, Aspect aspect) override { aspects.push_back(aspect); }

    std::vector<Aspect> take() { return std::exchange(aspects, {}); }

    int loads = 0;
    std::vector<Aspect> aspects;
};

TEST(Controls, ListenersHearOfRealChangesOnly) {
    TestScreen screen;
    Changes changes(screen);
    screen.label.Caption = "Label";
    screen.label.Visible = true;
    screen.check.setValue(false);
    screen.bar.setValue(0);
    screen.list.setListIndex(5);
    EXPECT_THAT(changes.take(), ElementsAre());

    screen.label.Caption = "1";
    screen.label.ForeColor = colors::scanGrey;
    screen.button.Enabled = false;
    screen.check.setValue(true);
    screen.list.add("row");
    screen.list.setListIndex(0);
    screen.bar.setValue(100);
    screen.Caption = "Other";
    EXPECT_THAT(changes.take(),
                ElementsAre(Aspect::Caption, Aspect::TextColor, Aspect::Enabled, Aspect::Value,
                            Aspect::ItemAdded, Aspect::Value, Aspect::Value, Aspect::Caption));
    EXPECT_FALSE(screen.bar.setValue(101));
    EXPECT_EQ(screen.bar.value(), 100);
    EXPECT_THAT(changes.take(), ElementsAre());
}

TEST(Controls, DisabledControlsRaiseNothing) {
    TestScreen screen;
    int clicks = 0;
    const auto count = [&] { ++clicks; };
    screen.button.onClick = screen.check.onClick = screen.plain.onClick = screen.label.onClick = count;
    screen.first.onClick = screen.timer.onTick = count;

    const auto clickAll = [&] {
        screen.button.click();
        screen.check.click();
        screen.plain.click();
        screen.label.click();
        screen.first.click();
    };
    clickAll();
    EXPECT_EQ(clicks, 5);
    screen.timer.tick();
    EXPECT_EQ(clicks, 5) << "Timers start disabled";

    for (Control* control : screen.controls()) {
        control->Enabled = control->kind() == ControlKind::Frame;
    }
    clickAll();
    EXPECT_EQ(clicks, 5);
    for (Control* control : screen.controls()) {
        control->Enabled = control->kind() != ControlKind::Frame;
    }
    clickAll();
    EXPECT_EQ(clicks, 5) << "A disabled frame disables what stands in it";
    EXPECT_EQ(screen.check.value(), 1);
    screen.timer.tick();
    EXPECT_EQ(clicks, 6);
}

TEST(Controls, OneOptionOfAFrameIsSelected) {
    TestScreen screen;
    screen.elsewhere.setValue(true);
    screen.first.click();
    screen.second.click();
    EXPECT_FALSE(screen.first.value());
    EXPECT_TRUE(screen.second.value());
    EXPECT_TRUE(screen.elsewhere.value());
    screen.second.setValue(false);
    EXPECT_FALSE(screen.first.value()) << "Clearing one selects no other";
}

TEST(Controls, FlatButtonIsWhiteWhilePressedOrDisabled) {
    TestScreen screen;
    FlatButton& button = screen.button;
    EXPECT_EQ(button.foreColor(), colors::black);
    button.mouseDown();
    EXPECT_EQ(button.foreColor(), colors::white);
    button.mouseMove();
    EXPECT_EQ(button.foreColor(), colors::black);
    button.mouseDown();
    button.mouseUp();
    EXPECT_EQ(button.foreColor(), colors::black);
    button.mouseDown();
    button.downStatus(1);
    EXPECT_EQ(button.foreColor(), colors::white) << "Takes any value and does nothing";
    button.mouseUp();

    button.Enabled = false;
    EXPECT_EQ(button.foreColor(), colors::white);
    button.mouseDown();
    button.Enabled = true;
    EXPECT_EQ(button.foreColor(), colors::black);
}

TEST(Controls, FlatCheckHoversAndFlips) {
    TestScreen screen;
    FlatCheck& check = screen.check;
    check.mouseMoveLabel();
    EXPECT_TRUE(check.hovered());
    check.mouseMoveBox();
    EXPECT_FALSE(check.hovered());
    for (const int anyValue : {0, 1}) {
        check.mouseMoveLabel();
        check.downStatus(anyValue);
        EXPECT_FALSE(check.hovered());
    }
    EXPECT_EQ(check.value(), 0);
    check.onClick = [&] { EXPECT_EQ(check.value(), 1) << "Flipped before the event"; };
    check.click();
    EXPECT_EQ(check.value(), 1);
}

TEST(Controls, ScreensLoadOnceAndMayHideWhileLoading) {
    TestScreen screen;
    Changes changes(screen);
    int loads = 0;
    screen.onLoad = [&] {
        ++loads;
        screen.hide();
    };
    screen.load();
    EXPECT_FALSE(screen.Visible());
    EXPECT_TRUE(screen.hiddenWhileLoading());
    screen.show();
    EXPECT_TRUE(screen.Visible());
    EXPECT_TRUE(screen.label.isShown());
    screen.page.Visible = false;
    EXPECT_FALSE(screen.first.isShown()) << "Two frames up";
    screen.hide();
    screen.show();
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(changes.loads, 1);

    TestScreen other;
    other.show();
    other.hide();
    EXPECT_FALSE(other.hiddenWhileLoading());
}

TEST(Controls, CloseAsksFirstAndHandlersRunThroughTheDispatcher) {
    TestScreen screen;
    screen.show();
    bool mayClose = false;
    screen.onQueryClose = [&] { return mayClose; };
    screen.close();
    EXPECT_TRUE(screen.Visible());
    mayClose = true;
    screen.close();
    EXPECT_FALSE(screen.Visible());

    int caught = 0;
    screen.dispatcher = [&](const Screen::Handler& handler) {
        try {
            handler();
        } catch (const std::runtime_error&) {
            ++caught;
        }
    };
    screen.button.onClick = screen.timer.onTick = [] { throw std::runtime_error("fault"); };
    screen.button.click();
    screen.timer.Enabled = true;
    screen.timer.tick();
    EXPECT_EQ(caught, 2);
}

TEST(Controls, RowsOfAList) {
    TestScreen screen;
    ListBox& list = screen.list;
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    list.add("a");
    list.add("b");
    list.setListIndex(1);
    EXPECT_EQ(list.text(), "b");
    EXPECT_EQ(clicks, 0) << "Set by code";
    list.select(0);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list.item(7), "");
    list.remove(0);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_THAT(list.items(), ElementsAre("b"));
    list.clear();
    EXPECT_EQ(list.text(), "");
}

} // namespace

} // namespace tarvelon
