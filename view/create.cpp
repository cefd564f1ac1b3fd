#include "view/create.h"

#include "ui/controls/bar_chart.h"
#include "ui/controls/tree.h"

namespace tarvelon {

MadeWindow makeControlWindow(FormWindow& form, Control& control) {
    switch (control.kind()) {
    case ControlKind::Frame:
        return makeWindow(form, static_cast<Frame&>(control));
    case ControlKind::Label:
        return makeWindow(form, static_cast<Label&>(control));
    case ControlKind::FlatButton:
        return makeWindow(form, static_cast<FlatButton&>(control));
    case ControlKind::FlatCheck:
        return makeWindow(form, static_cast<FlatCheck&>(control));
    case ControlKind::CheckBox:
        return makeWindow(form, static_cast<CheckBox&>(control));
    case ControlKind::OptionButton:
        return makeWindow(form, static_cast<OptionButton&>(control));
    case ControlKind::NavButton:
        return makeWindow(form, static_cast<NavButton&>(control));
    case ControlKind::TextBox:
        return makeWindow(form, static_cast<TextBox&>(control));
    case ControlKind::ListBox:
        return makeWindow(form, static_cast<ListBox&>(control));
    case ControlKind::CheckList:
        return makeWindow(form, static_cast<CheckListBox&>(control));
    case ControlKind::ComboBox:
        return makeWindow(form, static_cast<ComboBox&>(control));
    case ControlKind::ProgressBar:
        return makeWindow(form, static_cast<ProgressBar&>(control));
    case ControlKind::BarChart:
        return makeWindow(form, static_cast<BarChart&>(control));
    case ControlKind::Picture:
        return makeWindow(form, static_cast<Picture&>(control));
    case ControlKind::Tree:
        return makeWindow(form, static_cast<Tree&>(control));
    case ControlKind::Timer:
        break;
    }
    return nullptr;
}

} // namespace tarvelon
