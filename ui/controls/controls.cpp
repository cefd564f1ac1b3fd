#include "ui/controls/controls.h"

#include <utility>

namespace tarvelon {

Label::Label(ControlParent parent, std::string caption, Rect place, TextStyle style, bool visible)
    : Control(ControlKind::Label, parent, std::move(caption), place)
    , style_(style) {
    Visible = visible;
}

Label::Label(ControlParent parent, std::string caption, Rect place, Rank rank, bool visible, TextStyle style)
    : Label(parent, std::move(caption), place, style, visible) {
    rank_ = rank;
}

Icon::Icon(ControlParent parent, Rect place, std::string picture, Tone toneAtFirst)
    : Control(ControlKind::Icon, parent, "", place)
    , image(*this, std::move(picture))
    , tone(*this, toneAtFirst) {}

Verdict::Verdict(ControlParent parent, std::string caption, Rect place, bool visible)
    : Control(ControlKind::Verdict, parent, std::move(caption), place) {
    Visible = visible;
}

StepDots::StepDots(ControlParent parent, Rect place, int count)
    : Control(ControlKind::StepDots, parent, "", place)
    , count_(count) {}

StatusLine::StatusLine(ControlParent parent, std::string caption, Rect place)
    : Control(ControlKind::StatusLine, parent, std::move(caption), place) {}

const char* StatusLine::toneInWords() const {
    switch (tone()) {
    case Tone::Good:
        return "in order";
    case Tone::Attention:
        return "wants attention";
    default:
        return "not used";
    }
}

cButton::cButton(ControlParent parent, std::string caption, Rect place, Rank rank)
    : Control(ControlKind::FlatButton, parent, std::move(caption), place)
    , rank_(rank) {}

Color cButton::foreColor() const {
    return pressed_ || !Enabled() ? colors::white : colors::black;
}

void cButton::mouseDown() {
    press(Enabled());
}

void cButton::mouseUp() {
    press(false);
}

void cButton::mouseMove() {
    press(false);
    raise(onMouseMove);
}

void cButton::press(bool pressed) {
    if (pressed_ != pressed) {
        pressed_ = pressed;
        changed(Aspect::TextColor);
    }
}

check::check(ControlParent parent, std::string caption, Rect place)
    : TickBox(ControlKind::FlatCheck, parent, std::move(caption), place) {}

void check::downStatus(int) {
    if (hovered_) {
        hovered_ = false;
        changed(Aspect::TextColor);
    }
}

void check::mouseMoveLabel() {
    if (!hovered_) {
        hovered_ = true;
        changed(Aspect::TextColor);
    }
}

CheckBox::CheckBox(ControlParent parent, std::string caption, Rect place)
    : TickBox(ControlKind::CheckBox, parent, std::move(caption), place) {}

void TickBox::setValue(bool ticked) {
    const int value = ticked ? 1 : 0;
    if (value_ != value) {
        value_ = value;
        changed(Aspect::Value);
    }
}

void TickBox::click() {
    if (isUsable()) {
        setValue(value_ == 0);
        raise(onClick);
    }
}

OptionButton::OptionButton(ControlParent parent, std::string caption, Rect place)
    : Control(ControlKind::OptionButton, parent, std::move(caption), place) {}

void OptionButton::setValue(bool selected) {
    if (value_ == selected) {
        return;
    }
    value_ = selected;
    changed(Aspect::Value);
    if (!selected) {
        return;
    }
    for (Control* other : screen().controls()) {
        if (other != this && other->kind() == ControlKind::OptionButton && other->frame() == frame()) {
            static_cast<OptionButton*>(other)->setValue(false);
        }
    }
}

void OptionButton::click() {
    if (isUsable()) {
        setValue(true);
        raise(onClick);
    }
}

NavButton::NavButton(ControlParent parent, std::string caption, Rect place, std::string icon)
    : Control(ControlKind::NavButton, parent, std::move(caption), place)
    , icon_(std::move(icon)) {}

Picture::Picture(ControlParent parent, Rect place, std::string image, std::string caption)
    : Control(ControlKind::Picture, parent, std::move(caption), place)
    , image_(std::move(image)) {}

TextBox::TextBox(ControlParent parent, Rect place, bool visible)
    : Control(ControlKind::TextBox, parent, "", place) {
    Visible = visible;
}

ProgressBar::ProgressBar(ControlParent parent, Rect place)
    : Control(ControlKind::ProgressBar, parent, "", place) {}

bool ProgressBar::setValue(int value) {
    if (value < 0 || value > max_) {
        return false;
    }
    if (value_ != value) {
        value_ = value;
        changed(Aspect::Value);
    }
    return true;
}

void ProgressBar::setMax(int max) {
    max_ = max;
    value_ = value_ > max ? max : value_;
    changed(Aspect::Value);
}

Timer::Timer(ControlParent parent, int interval)
    : Control(ControlKind::Timer, parent, "", {})
    , interval_(interval) {
    Enabled = false;
}

void Timer::tick() {
    if (Enabled()) {
        raise(onTick);
    }
}

} // namespace tarvelon
