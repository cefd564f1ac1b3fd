#include "ui/controls/bar_chart.h"

#include <algorithm>
#include <utility>

namespace tarvelon {

BarChart::BarChart(ControlParent parent, std::string title, int slots, Rect place)
    : Control(ControlKind::BarChart, parent, std::move(title), place)
    , slots_(slots) {}

void BarChart::add(std::string label, double value) {
    bars_.push_back({std::move(label), value});
    changed(Aspect::ItemAdded);
}

void BarChart::mark(int index) {
    const int chosen = index >= 0 && index < count() ? index : -1;
    if (marked_ != chosen) {
        marked_ = chosen;
        changed(Aspect::Value);
    }
}

void BarChart::clear() {
    bars_.clear();
    marked_ = -1;
    changed(Aspect::Items);
}

double BarChart::share(int index) const {
    double largest = 0;
    for (const Bar& bar : bars_) {
        largest = std::max(largest, bar.value);
    }
    const double value = bars_.at(static_cast<std::size_t>(index)).value;
    return largest > 0 && value > 0 ? value / largest : 0;
}

} // namespace tarvelon
