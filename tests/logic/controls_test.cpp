#include "platform/sim/workstation.h"
#include "ui/controls/lists.h"
#include "view/palette.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

TEST(Controls, TellOfRealChangesOnly) {
    SimWorkstation pc;
    Screen screen("Test", 400, 300);
    pc.attach(screen);
    OptionButton option(screen, "Option", {});
    CheckBox box(screen, "Box", {});
    Label label(screen, "Label", {});
    CheckListBox list(screen, {});
    ProgressBar bar(screen, {});
    for (int again = 0; again < 2; ++again) {
        label.Caption = "Label";
        label.ForeColor = colors::scanGrey;
        box.setValue(true);
        option.setValue(true);
        list.setListIndex(5);
        list.replace(5, "row");
        list.setTicked(5, true);
        EXPECT_TRUE(bar.setValue(100));
        EXPECT_FALSE(bar.setValue(101));
    }
    EXPECT_EQ(pc.view.changes(), 4);
    list.add("row");
    list.setTicked(0, true);
    list.replace(0, "other");
    list.setListIndex(0);
    EXPECT_EQ(list.text(), "other");
    list.clear();
    EXPECT_EQ(list.listIndex(), -1);
    bar.setMax(50);
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(pc.view.changes(), 10);
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
