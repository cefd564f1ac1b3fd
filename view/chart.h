#pragma once

#include "ui/controls/bar_chart.h"
#include "view/control.h"

namespace tarvelon {

class BarChartWindow : public ControlWindow {
public:
    BarChartWindow(FormWindow& form, BarChart& chart)
        : ControlWindow(form, chart)
        , chart_(chart) {}

    bool takesKeys() const override { return false; }

protected:
    Kind kind() const override;
    void paint(Canvas& canvas) override;

private:
    void paintBar(Canvas& canvas, const RECT& slot, int index) const;

    BarChart& chart_;
};

} // namespace tarvelon
