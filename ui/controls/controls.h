#pragma once

#include "ui/controls/control.h"

#include <functional>
#include <optional>
#include <string>

namespace tarvelon {

enum class TextStyle {
    Normal,
    Title,   ///< Of a page or a form.
    Heading, ///< Of a part of a page.
    Value,   ///< A figure that people look for: large, to the right.
    Gauge,   ///< A percentage such as "57%", drawn as a bar behind its text as well.
    Hint,    ///< Explanations: quieter than the texts around them.
    Caption, ///< Names the picture above it: centred.
    Link,    ///< Opens something elsewhere: underlined, with a hand under the mouse.
    Step,    ///< Plain text that is pressed; its colour and underline are all its look.
    Action,  ///< A label that is clicked like a button: drawn with a face that lights up under the mouse.
};

class Label : public Control {
public:
    Label(ControlParent parent, std::string caption, Rect place, TextStyle style = TextStyle::Normal,
          bool visible = true);
    /// One that is clicked like a button of that rank.
    Label(ControlParent parent, std::string caption, Rect place, Rank rank, bool visible = true,
          TextStyle style = TextStyle::Action);

    TextStyle style() const { return style_; }
    Rank rank() const { return rank_; }

    Property<Color, Control, Aspect::TextColor> ForeColor{*this, colors::black};
    Property<bool, Control, Aspect::TextColor> Underlined{*this, false};
    /// What the text says: its colour, where `ForeColor` is black.
    Property<Tone, Control, Aspect::TextColor> tone{*this, Tone::Plain};

    Screen::Handler onMouseDown;
    /// The mouse button is up again, in front of the click.
    Screen::Handler onMouseUp;
    Screen::Handler onClick;
    void mouseDown() override { raise(onMouseDown); }
    void mouseUp() override { raise(onMouseUp); }
    void click() override { raiseIfUsable(onClick); }

private:
    TextStyle style_;
    Rank rank_ = Rank::Ordinary;
};

/// A drawn picture that nobody clicks.
class Icon : public Control {
public:
    Icon(ControlParent parent, Rect place, std::string picture, Tone toneAtFirst = Tone::Plain);

    /// Name of the picture, such as "integrity"; empty for none.
    Property<std::string, Control, Aspect::Value> image;
    Property<Tone, Control, Aspect::Value> tone;
};

/// What comes of a scan, in a sentence on a band of its colour, with a drawn shield.
class Verdict : public Control {
public:
    Verdict(ControlParent parent, std::string caption, Rect place, bool visible = true);

    Property<Tone, Control, Aspect::Value> tone{*this, Tone::Plain};
};

/// The way through some pages, a dot for each.
class StepDots : public Control {
public:
    StepDots(ControlParent parent, Rect place, int count);

    int count() const { return count_; }
    /// From 0.
    Property<int, Control, Aspect::Value> current{*this, 0};

private:
    int count_;
};

/// How a part of the program stands: a drawn sign, its name, which is the caption, and a few words below.
class StatusLine : public Control {
public:
    StatusLine(ControlParent parent, std::string caption, Rect place);

    Property<std::string, Control, Aspect::Value> text{*this, ""};
    /// Good, attention, or quiet for what is not used.
    Property<Tone, Control, Aspect::Value> tone{*this, Tone::Quiet};
    /// The sign in words.
    const char* toneInWords() const;
};

/// The flat button that stands for nearly every button. Its caption is white while it is pressed
/// or disabled, else black.
class cButton : public Control {
public:
    cButton(ControlParent parent, std::string caption, Rect place, Rank rank = Rank::Ordinary);

    Rank rank() const { return rank_; }
    /// The caption's colour now.
    Color foreColor() const;

    Screen::Handler onClick;

    void mouseDown() override;
    void mouseUp() override;
    /// The mouse moves over the button's own ground.
    void mouseMove();
    /// Nothing happens on a disabled button.
    void click() override { raiseIfUsable(onClick); }

private:
    void press(bool pressed);

    Rank rank_;
    bool pressed_ = false;
};

/// What both kinds of check boxes share.
class TickBox : public Control {
public:
    /// 0 or 1.
    int value() const { return value_; }
    /// Any true value ticks the box. No click is raised.
    void setValue(bool ticked);

    Screen::Handler onClick;
    /// The box flips; on the label and on the box alike.
    void click() override;

protected:
    using Control::Control;

private:
    int value_ = 0;
};

/// The flat check box. The label turns blue and underlined under the mouse.
class check : public TickBox {
public:
    check(ControlParent parent, std::string caption, Rect place);

    /// Takes the hover look away, whatever the value.
    void downStatus(int value);

    bool hovered() const { return hovered_; }

    void mouseMoveLabel();
    void mouseMoveBox() { downStatus(1); }

private:
    bool hovered_ = false;
};

/// A plain check box of the system.
class CheckBox : public TickBox {
public:
    CheckBox(ControlParent parent, std::string caption, Rect place);

    Property<Color, Control, Aspect::TextColor> ForeColor{*this, colors::black};
    /// Empty: the ground it stands on.
    Property<std::optional<Color>, Control, Aspect::TextColor> BackColor{*this, std::nullopt};
};

/// One choice out of those in the same frame.
class OptionButton : public Control {
public:
    OptionButton(ControlParent parent, std::string caption, Rect place);

    bool value() const { return value_; }
    /// Selecting one clears its neighbours in the same frame.
    void setValue(bool selected);

    Screen::Handler onClick;
    void click() override;

private:
    bool value_ = false;
};

/// An entry of the navigation column: a drawn icon over its caption.
class NavButton : public Control {
public:
    NavButton(ControlParent parent, std::string caption, Rect place, std::string icon);

    /// Name of the picture, such as "integrity".
    const std::string& icon() const { return icon_; }

    /// The entry whose page is open.
    Property<bool, Control, Aspect::Value> Current{*this, false};

    Screen::Handler onClick;
    void click() override { raiseIfUsable(onClick); }

private:
    std::string icon_;
};

/// A drawn picture that is clicked. Its caption names it for those who cannot see it; the keyboard reaches it
/// while it is visible.
class Picture : public Control {
public:
    Picture(ControlParent parent, Rect place, std::string image, std::string caption);

    /// Name of the picture, such as "standby".
    const std::string& image() const { return image_; }

    Screen::Handler onClick;
    /// A key that presses the picture goes down; `onKeyClick` follows unless the keyboard goes elsewhere
    /// first.
    Screen::Handler onKeyPress;
    Screen::Handler onKeyClick;
    /// The keyboard has come to the picture, or gone from it.
    Screen::Handler onFocus;
    Screen::Handler onFocusLost;
    void click() override { raiseIfUsable(onClick); }
    void keyPress() { raiseIfUsable(onKeyPress); }
    void keyClick() { raiseIfUsable(onKeyClick); }
    void focus() { raise(onFocus); }
    void loseFocus() { raise(onFocusLost); }

private:
    std::string image_;
};

/// One line of text, which is its caption.
class TextBox : public Control {
public:
    TextBox(ControlParent parent, Rect place, bool visible = true);

    /// The user has typed.
    void typed(const std::string& text) { Caption = text; }
};

class ProgressBar : public Control {
public:
    ProgressBar(ControlParent parent, Rect place);

    int value() const { return value_; }
    int max() const { return max_; }
    /// A value outside 0 to `max` is refused: false, and the bar stays as it was.
    bool setValue(int value);
    void setMax(int max);

private:
    int value_ = 0;
    int max_ = 100;
};

/// Ticks every `interval` milliseconds while enabled. Not drawn.
class Timer : public Control {
public:
    Timer(ControlParent parent, int interval);

    int interval() const { return interval_; }

    Screen::Handler onTick;
    void tick();

private:
    int interval_;
};

} // namespace tarvelon
