#include "ui/controls/control.h"

#include <utility>

namespace tarvelon {

ControlParent::ControlParent(Screen& onScreen)
    : screen(onScreen)
    , frame(nullptr) {}
ControlParent::ControlParent(Frame& inFrame)
    : screen(inFrame.screen())
    , frame(&inFrame) {}

Control::Control(ControlKind kind, ControlParent parent, std::string caption, Rect place)
    : Caption(*this, std::move(caption))
    , Visible(*this, true)
    , Enabled(*this, true)
    , ToolTip(*this, "")
    , kind_(kind)
    , screen_(parent.screen)
    , frame_(parent.frame)
    , place_(place) {
    screen_.add(*this);
}

bool Control::isShown() const {
    return Visible() && (frame_ ? frame_->isShown() : screen_.Visible());
}

bool Control::isUsable() const {
    return Enabled() && (!frame_ || frame_->isUsable());
}

void Control::raiseIfUsable(const Screen::Handler& handler) const {
    if (isUsable()) {
        raise(handler);
    }
}

void Control::changed(Aspect aspect) {
    if (screen_.listener) {
        screen_.listener->changed(*this, aspect);
    }
}

Frame::Frame(ControlParent parent, Rect place, bool visible)
    : Control(ControlKind::Frame, parent, "", place)
    , look_(Look::Page) {
    Visible = visible;
}

Frame::Frame(ControlParent parent, std::string caption, Rect place)
    : Control(ControlKind::Frame, parent, std::move(caption), place)
    , look_(Look::Group) {}

} // namespace tarvelon
