#include "platform/win32/view_lines.h"
#include "platform/win32/windows_api.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tarvelon {

namespace {

TEST(Lines, PathsAreReadAsTheyAreDrawn) {
    const LineDrawing drawing =
        readLineDrawing("<svg viewBox=\"0 0 32 32\" stroke-width=\"2.5\"><path d=\"M4,8 H17 V-1.5 L3 .5 6 7 Z"
                        "M1 1 L2 2\"/>\n<path stroke=\"#fff\" d=\"M0 0 C0 4 4 8 8 8\"/></svg>");
    EXPECT_EQ(drawing.side, 32);
    EXPECT_EQ(drawing.thickness, 2.5F);
    ASSERT_EQ(drawing.lines.size(), 3U);
    const std::vector<Spot>& first = drawing.lines[0];
    ASSERT_EQ(first.size(), 6U);
    EXPECT_EQ(first[1].x, 17);
    EXPECT_EQ(first[1].y, 8);
    EXPECT_EQ(first[2].y, -1.5F);
    EXPECT_EQ(first[3].y, 0.5F);
    EXPECT_EQ(first[4].x, 6) << "More numbers repeat the command";
    EXPECT_EQ(first[5].x, 4) << "Z closes";
    const std::vector<Spot>& curve = drawing.lines[2];
    EXPECT_NEAR(curve[curve.size() / 2].x, 2.5F, 0.01) << "Half way along the curve";
    EXPECT_NEAR(curve[curve.size() / 2].y, 5.5F, 0.01);
    EXPECT_EQ(curve.back().x, 8);
}

TEST(Lines, ArcsGoRoundTheRightMiddle) {
    struct {
        const char* flags;
        Spot middle;
        float turn; ///< Part of a whole circle.
    } const cases[] = {
        {"0 0 1", {0, 10}, 0.25F},
        {"0 1 1", {10, 0}, 0.75F},
        {"0 0 0", {10, 0}, 0.25F},
        {"0 1 0", {0, 10}, 0.75F},
    };
    for (const auto& arc : cases) {
        const LineDrawing drawing =
            readLineDrawing("<path d=\"M0 0 A10 10 " + std::string(arc.flags) + " 10 10\"/>");
        ASSERT_EQ(drawing.lines.size(), 1U);
        float length = 0;
        for (std::size_t index = 1; index < drawing.lines[0].size(); ++index) {
            const Spot from = drawing.lines[0][index - 1];
            const Spot to = drawing.lines[0][index];
            length += std::hypot(to.x - from.x, to.y - from.y);
            EXPECT_NEAR(std::hypot(to.x - arc.middle.x, to.y - arc.middle.y), 10, 0.01) << arc.flags;
        }
        EXPECT_NEAR(length, arc.turn * 62.83F, 0.2) << arc.flags;
    }
}

TEST(Lines, WhatCannotBeReadEndsThePath) {
    for (const char* source :
         {"", "d=\"", "<path d=\"L1 2\"/>", "<path d=\"5 5\"/>", "viewBox=\"0\" d=\"\""}) {
        EXPECT_TRUE(readLineDrawing(source).lines.empty()) << source;
    }
    const LineDrawing drawing = readLineDrawing("<path d=\"M0 0 L1 1 q2 2 L9 9\"/><path d=\"M5 5 L6 6\"/>");
    ASSERT_EQ(drawing.lines.size(), 2U);
    EXPECT_EQ(drawing.lines[0].size(), 2U);
}

TEST(Lines, EveryPictureOfTheProgramStaysInItsSquare) {
    for (const char* name :
         {"appwatch", "integrity", "options", "regwatch", "restart", "standby", "turnoff"}) {
        const HRSRC found = FindResourceA(nullptr, name, RT_RCDATA);
        ASSERT_TRUE(found) << name;
        const LineDrawing drawing =
            readLineDrawing({static_cast<const char*>(LockResource(LoadResource(nullptr, found))),
                             SizeofResource(nullptr, found)});
        EXPECT_FALSE(drawing.lines.empty()) << name;
        const float half = drawing.thickness / 2;
        EXPECT_GT(half, 0);
        for (const std::vector<Spot>& line : drawing.lines) {
            EXPECT_GT(line.size(), 1U) << name;
            for (const Spot spot : line) {
                EXPECT_TRUE(spot.x >= half && spot.x <= drawing.side - half && spot.y >= half &&
                            spot.y <= drawing.side - half)
                    << name << " at " << spot.x << ", " << spot.y;
            }
        }
    }
}

} // namespace

} // namespace tarvelon
