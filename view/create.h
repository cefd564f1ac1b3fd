#pragma once

#include "view/control.h"

#include <memory>

namespace tarvelon {

class BarChart;
class Tree;

using MadeWindow = std::unique_ptr<ControlWindow>;

/// Null for a timer, which is not seen.
MadeWindow makeControlWindow(FormWindow& form, Control& control);

MadeWindow makeWindow(FormWindow& form, Frame& frame);
MadeWindow makeWindow(FormWindow& form, Label& label);
MadeWindow makeWindow(FormWindow& form, FlatButton& button);
MadeWindow makeWindow(FormWindow& form, FlatCheck& check);
MadeWindow makeWindow(FormWindow& form, CheckBox& box);
MadeWindow makeWindow(FormWindow& form, OptionButton& option);
MadeWindow makeWindow(FormWindow& form, NavButton& button);
MadeWindow makeWindow(FormWindow& form, Picture& picture);
MadeWindow makeWindow(FormWindow& form, TextBox& box);
MadeWindow makeWindow(FormWindow& form, ListBox& list);
MadeWindow makeWindow(FormWindow& form, CheckListBox& list);
MadeWindow makeWindow(FormWindow& form, ComboBox& combo);
MadeWindow makeWindow(FormWindow& form, ProgressBar& bar);
MadeWindow makeWindow(FormWindow& form, BarChart& chart);
MadeWindow makeWindow(FormWindow& form, Tree& tree);

} // namespace tarvelon
