#include "platform/win32/view_lines.h"

#include <gtest/gtest.h>

namespace tarvelon {

namespace {

TEST(Lines, PathsAreReadUpToWhatIsNotKnown) {
    for (const char* source :
         {"", "d=\"", "<path d=\"L1 2\"/>", "<path d=\"5 5\"/>", "viewBox=\"0\" d=\"\""}) {
        EXPECT_TRUE(readLineDrawing(source).lines.empty()) << source;
    }
    const LineDrawing drawing = readLineDrawing("<path d=\"M4,8 17 8 V-1.5 L3 .5 6 7 Z 5 q2 2 L9 9\"/>"
                                                "<path d=\"M0 0 A5 5 0 0 1 10 0\"/>");
    ASSERT_EQ(drawing.lines.size(), 2U);
    ASSERT_EQ(drawing.lines[0].size(), 6U) << "More numbers repeat the command";
    EXPECT_EQ(drawing.lines[0][2].y, -1.5F);
    EXPECT_EQ(drawing.lines[0][5].x, 4) << "Z closes";
    EXPECT_LT(drawing.lines[1][9].y, -4) << "Over the top";
}

} // namespace

} // namespace tarvelon
