#include "view/create.h"

#include <iterator>

namespace tarvelon {

MadeWindow makeControlWindow(FormWindow& form, Control& control) {
    // In the order of the kinds, of which the last is the timer.
    static constexpr MadeWindow (*makers[])(FormWindow&, Control&) = {
        makeFrame,        makeLabel,     makeFlatButton, makeFlatCheck,   makeCheckBox,
        makeOptionButton, makeNavButton, makePicture,    makeTextBox,     makeListBox,
        makeCheckList,    makeTree,      makeComboBox,   makeProgressBar, makeBarChart,
        makeIcon,         makeVerdict,   makeStepDots,   makeStatusLine,
    };
    static_assert(std::size(makers) == static_cast<std::size_t>(ControlKind::Timer));
    return control.kind() == ControlKind::Timer
               ? nullptr
               : makers[static_cast<std::size_t>(control.kind())](form, control);
}

} // namespace tarvelon
