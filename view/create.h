#pragma once

#include "view/control.h"

#include <memory>

namespace tarvelon {

using MadeWindow = std::unique_ptr<ControlWindow>;

/// Null for a timer, which is not seen.
MadeWindow makeControlWindow(FormWindow& form, Control& control);

// The control has to be of the kind.
MadeWindow makeFrame(FormWindow& form, Control& control);
MadeWindow makeLabel(FormWindow& form, Control& control);
MadeWindow makeFlatButton(FormWindow& form, Control& control);
MadeWindow makeFlatCheck(FormWindow& form, Control& control);
MadeWindow makeCheckBox(FormWindow& form, Control& control);
MadeWindow makeOptionButton(FormWindow& form, Control& control);
MadeWindow makeNavButton(FormWindow& form, Control& control);
MadeWindow makePicture(FormWindow& form, Control& control);
MadeWindow makeTextBox(FormWindow& form, Control& control);
MadeWindow makeListBox(FormWindow& form, Control& control);
MadeWindow makeCheckList(FormWindow& form, Control& control);
MadeWindow makeTree(FormWindow& form, Control& control);
MadeWindow makeComboBox(FormWindow& form, Control& control);
MadeWindow makeProgressBar(FormWindow& form, Control& control);
MadeWindow makeBarChart(FormWindow& form, Control& control);
MadeWindow makeIcon(FormWindow& form, Control& control);
MadeWindow makeVerdict(FormWindow& form, Control& control);
MadeWindow makeStepDots(FormWindow& form, Control& control);
MadeWindow makeStatusLine(FormWindow& form, Control& control);

} // namespace tarvelon
