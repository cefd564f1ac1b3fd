#include "view/chart.h"
#include "view/edit.h"
#include "view/frame.h"
#include "view/label.h"
#include "view/list.h"
#include "view/picture.h"
#include "view/progress.h"
#include "view/tick.h"
#include "view/tree.h"

namespace tarvelon {

std::unique_ptr<ControlWindow> makeControlWindow(FormWindow& form, Control& control) {
    switch (control.kind()) {
    case ControlKind::Frame:
        return std::make_unique<FrameWindow>(form, static_cast<Frame&>(control));
    case ControlKind::Label: {
        auto& label = static_cast<Label&>(control);
        if (label.style() == TextStyle::Action || label.style() == TextStyle::Link ||
            label.style() == TextStyle::Step) {
            return std::make_unique<ActionWindow>(form, label);
        }
        return std::make_unique<LabelWindow>(form, label);
    }
    case ControlKind::FlatButton:
        return std::make_unique<FlatButtonWindow>(form, static_cast<FlatButton&>(control));
    case ControlKind::FlatCheck:
        return std::make_unique<FlatCheckWindow>(form, static_cast<FlatCheck&>(control));
    case ControlKind::CheckBox:
        return std::make_unique<CheckBoxWindow>(form, static_cast<CheckBox&>(control));
    case ControlKind::OptionButton:
        return std::make_unique<OptionButtonWindow>(form, static_cast<OptionButton&>(control));
    case ControlKind::NavButton:
        return std::make_unique<NavButtonWindow>(form, static_cast<NavButton&>(control));
    case ControlKind::TextBox:
        return std::make_unique<TextBoxWindow>(form, static_cast<TextBox&>(control));
    case ControlKind::ListBox:
        return std::make_unique<ListBoxWindow>(form, static_cast<ListBox&>(control));
    case ControlKind::CheckList:
        return std::make_unique<CheckListWindow>(form, static_cast<CheckListBox&>(control));
    case ControlKind::ComboBox:
        return std::make_unique<ComboBoxWindow>(form, static_cast<ComboBox&>(control));
    case ControlKind::ProgressBar:
        return std::make_unique<ProgressBarWindow>(form, static_cast<ProgressBar&>(control));
    case ControlKind::BarChart:
        return std::make_unique<BarChartWindow>(form, static_cast<BarChart&>(control));
    case ControlKind::Picture:
        return std::make_unique<PictureWindow>(form, static_cast<Picture&>(control));
    case ControlKind::Tree:
        return std::make_unique<TreeWindow>(form, static_cast<Tree&>(control));
    case ControlKind::Timer:
        break;
    }
    return nullptr;
}

} // namespace tarvelon
