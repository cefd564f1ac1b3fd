#include "platform/win32/view_lines.h"

#include <gtest/gtest.h>

namespace tarvelon {

namespace {

TEST(Lines, PathsAreReadUpToWhatIsNotKnown) {
    const LineDrawing drawing =
        readLineDrawing("<svg viewBox=\"0 0 32 32\" stroke-width=\"2.5\"><path d=\"M4,8 H17 V-1.5 L3 .5 6 7 Z"
                        "M1 1 L2 2 q2 2 L9 9\"/>\n<path d=\"M0 0 C0 4 4 8 8 8\"/></svg>");
    EXPECT_EQ(drawing.side, 32);
    EXPECT_EQ(drawing.thickness, 2.5F);
    ASSERT_EQ(drawing.lines.size(), 3U);
    ASSERT_EQ(drawing.lines[0].size(), 6U) << "More numbers repeat the command";
    EXPECT_EQ(drawing.lines[0][3].y, 0.5F);
    EXPECT_EQ(drawing.lines[0][5].x, 4) << "Z closes";
    EXPECT_EQ(drawing.lines[1].size(), 2U);
    const Spot curve = drawing.lines[2][8];
    EXPECT_NEAR(curve.x, 2.5F, 0.01) << "Half way along the curve";
    EXPECT_NEAR(curve.y, 5.5F, 0.01);
    for (const char* source :
         {"", "d=\"", "<path d=\"L1 2\"/>", "<path d=\"5 5\"/>", "viewBox=\"0\" d=\"\""}) {
        EXPECT_TRUE(readLineDrawing(source).lines.empty()) << source;
    }
}

} // namespace

} // namespace tarvelon
