#include "platform/sim/workstation.h"
#include "ui/controls/bar_chart.h"
#include "ui/controls/controls.h"
#include "ui/controls/tree.h"
#include "view/palette.h"

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

TEST(Palette, WhatIsDrawnStandsOutFromWhatIsBehindIt) {
    using Colors = std::initializer_list<Color>;
    const auto expectSeen = [](double least, Colors drawn, Colors behind) {
        for (const Color color : drawn) {
            for (const Color ground : behind) {
                EXPECT_GE(contrast(color, ground), least) << std::hex << color << " on " << ground;
            }
        }
    };
    for (const Theme& theme : {lightTheme, darkTheme}) {
        const Surface captions = theme.captions.value_or(theme.page);
        for (const Surface& on : {theme.page, theme.card, theme.current, theme.navigation, captions}) {
            expectSeen(7, {on.text}, {on.ground});
            expectSeen(4.5, {on.quietText, on.disabledText}, {on.ground});
            expectSeen(3, {on.mark.edge, on.mark.ticked, on.button(Rank::Ordinary).edge}, {on.ground});
            expectSeen(3, {on.button(Rank::Primary).edge, on.button(Rank::Destructive).edge}, {on.ground});
            expectSeen(3, {on.mark.edge}, {on.mark.field});
            expectSeen(3, {on.mark.tick}, {on.mark.ticked});
            for (const Face& face : on.buttons) {
                expectSeen(7, {colors::black}, {face.normal, face.hovered});
                expectSeen(4.5, {colors::white}, {face.pressed, face.disabled});
            }
        }
        const Color page = theme.page.ground;
        const Color card = theme.card.ground;
        for (const ToneColors& tone : theme.tones) {
            expectSeen(4.5, {tone.sign}, {page, card, tone.band});
            expectSeen(7, {theme.page.text}, {tone.band});
        }
        expectSeen(3, {theme.border, theme.focus, theme.bar, theme.chartBar}, {page, card});
        expectSeen(4.5, {theme.link}, {page, card});
        expectSeen(4.5, {theme.fieldText, theme.fieldQuietText}, {theme.field});
        expectSeen(3, {theme.border, theme.selected}, {theme.field});
        expectSeen(4.5, {theme.selectedText}, {theme.selected});
        expectSeen(4.5, {theme.selectedElsewhereText}, {theme.selectedElsewhere});
        expectSeen(4.5, {theme.navigationCurrentText}, {theme.navigationCurrent});
        expectSeen(3, {theme.bar}, {theme.track});
        expectSeen(4.5, {colors::scanGrey}, {theme.current.ground});
        expectSeen(4.5, {colors::hoverBlue}, {captions.ground});
        for (const Face& face : {theme.standby, theme.turnOff, theme.restart}) {
            expectSeen(3, {colors::white}, {face.normal, face.hovered, face.pressed, face.disabled});
        }
    }
}

} // namespace
} // namespace tarvelon
