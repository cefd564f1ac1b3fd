#include "ui/controls/bar_chart.h"
#include "view/create.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr int labelSize = 75; // In tenths of a point.

class BarChartWindow : public WindowOf<BarChart> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const RECT area = canvas.area();
        canvas.roundedBox(area, scaled(4), theme().card.ground, theme().line, scaled(1));
        canvas.text(control().Caption(), {area.left, scaled(3), area.right, scaled(21)},
                    {.color = theme().card.text, .weight = FW_SEMIBOLD, .align = DT_CENTER});

        const RECT inside = inset(area, scaled(4), 0);
        const LONG floor = area.bottom - scaled(20);
        canvas.fill({inside.left, floor, inside.right, floor + scaled(1)}, theme().border);
        for (int i = 0; i < control().count(); ++i) {
            const RECT slot{inside.left + MulDiv(widthOf(inside), i, control().slots()), scaled(24),
                            inside.left + MulDiv(widthOf(inside), i + 1, control().slots()), floor};
            paintBar(canvas, slot, i);
        }
    }

private:
    /// The marked bar has another colour and a tick above it, so that it is told by its shape as well.
    void paintBar(Canvas& canvas, const RECT& slot, int index) const {
        const Scale& scaled = canvas.scale();
        const bool marked = index == control().marked();
        const Color color = marked ? theme().bar : theme().chartBar;

        const int tickRoom = scaled(14);
        const int tallest = heightOf(slot) - tickRoom;
        const int height = std::max(static_cast<int>(tallest * control().share(index)), scaled(2));
        const RECT bar{slot.left + scaled(2), slot.bottom - height, slot.right - scaled(2), slot.bottom};
        canvas.roundedBox(bar, std::min(scaled(2), height / 2), color);

        const RECT label{slot.left, slot.bottom + scaled(2), slot.right, slot.bottom + scaled(19)};
        canvas.text(control().bars()[static_cast<std::size_t>(index)].label, label,
                    {.color = theme().card.text,
                     .tenthPoints = labelSize,
                     .weight = marked ? FW_BOLD : FW_NORMAL,
                     .align = DT_CENTER});
        if (marked) {
            const float middle = static_cast<float>(bar.left + bar.right) / 2;
            const float low = static_cast<float>(bar.top - scaled(4));
            const float unit = static_cast<float>(scaled(8)) / 8;
            canvas.stroke({{middle - 4 * unit, low - 3 * unit},
                           {middle - unit, low},
                           {middle + 4 * unit, low - 7 * unit}},
                          2 * unit, color);
        }
    }
};

} // namespace

MadeWindow makeBarChart(FormWindow& form, Control& control) {
    return std::make_unique<BarChartWindow>(form, control, ControlWindow::Kind{"STATIC"});
}

} // namespace tarvelon
