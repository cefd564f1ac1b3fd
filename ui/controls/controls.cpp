#include "ui/controls/controls.h"

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

std::string ItemControl::item(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : std::string();
}

void ItemControl::add(std::string text) {
    items_.push_back(std::move(text));
    changed(Aspect::ItemAdded);
}

void ItemControl::clear() {
    items_.clear();
    listIndex_ = -1;
    changed(Aspect::Items);
}

void ItemControl::replace(int index, std::string text) {
    if (index >= 0 && index < count()) {
        items_[static_cast<std::size_t>(index)] = std::move(text);
        changed(Aspect::Items);
    }
}

void ItemControl::setListIndex(int index) {
    const int chosen = index >= 0 && index < count() ? index : -1;
    if (listIndex_ != chosen) {
        listIndex_ = chosen;
        changed(Aspect::Value);
    }
}

void ItemControl::select(int index) {
    if (isUsable()) {
        setListIndex(index);
        raise(onClick);
    }
}

ListBox::ListBox(ControlParent parent, Rect place, bool visible, std::string whenEmpty)
    : ListBox(ControlKind::ListBox, parent, place, std::move(whenEmpty)) {
    Visible = visible;
}

ListBox::ListBox(ControlKind kind, ControlParent parent, Rect place, std::string whenEmpty)
    : ItemControl(kind, parent, "", place)
    , whenEmpty_(std::move(whenEmpty)) {}

CheckListBox::CheckListBox(ControlParent parent, Rect place)
    : ListBox(ControlKind::CheckList, parent, place, "") {}

bool CheckListBox::ticked(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < ticks_.size() &&
           ticks_[static_cast<std::size_t>(index)];
}

void CheckListBox::setTicked(int index, bool ticked) {
    if (index < 0 || index >= count() || this->ticked(index) == ticked) {
        return;
    }
    ticks_.resize(static_cast<std::size_t>(count()), false);
    ticks_[static_cast<std::size_t>(index)] = ticked;
    changed(Aspect::Value);
}

void CheckListBox::toggle(int index) {
    setTicked(index, !ticked(index));
    select(index);
}

ComboBox::ComboBox(ControlParent parent, Rect place)
    : ItemControl(ControlKind::ComboBox, parent, "", place) {}

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
