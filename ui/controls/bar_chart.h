#pragma once

#include "ui/controls/controls.h"

#include <string>
#include <vector>

namespace tarvelon {

/// A few figures to compare by eye: a bar with a label for each, from left to right, and one of them marked.
/// The caption is the title above them.
class BarChart : public Control {
public:
    struct Bar {
        std::string label;
        double value;
    };

    /// `slots`: as many bars as there will be, so that the first ones stand where they stay.
    BarChart(ControlParent parent, std::string title, int slots, Rect place);

    int slots() const { return slots_; }
    const std::vector<Bar>& bars() const { return bars_; }
    int count() const { return static_cast<int>(bars_.size()); }
    /// From 0, or -1.
    int marked() const { return marked_; }

    void add(std::string label, double value);
    /// Any number that is no bar's marks none.
    void mark(int index);
    void clear();

    /// Height of a bar from 0 to 1: its share of the largest value. A value below 0 counts as 0.
    double share(int index) const;

private:
    int slots_;
    std::vector<Bar> bars_;
    int marked_ = -1;
};

} // namespace tarvelon
