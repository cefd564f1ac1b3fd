#pragma once

#include "ui/controls/screen.h"

#include <functional>
#include <string>

namespace tarvelon {

enum class ControlKind {
    Frame,
    Label,
    FlatButton,
    FlatCheck,
    CheckBox,
    OptionButton,
    NavButton,
    Picture,
    TextBox,
    ListBox,
    CheckList,
    Tree,
    ComboBox,
    ProgressBar,
    BarChart,
    Icon,
    Verdict,
    StepDots,
    StatusLine,
    Timer,
};

/// How much a button weighs beside its neighbours.
enum class Rank {
    Ordinary,
    Primary,     ///< What most people come to the page for.
    Quiet,       ///< Changes what is chosen, no more: the page's ground, the text at the left.
    Destructive, ///< Takes something away.
};

/// What a drawn sign says.
enum class Tone { Plain, Good, Attention, Bad, Quiet };

class Frame;

/// Where a control stands: on the screen itself or in a frame of it. Made implicitly from either.
struct ControlParent {
    ControlParent(Screen& onScreen);
    ControlParent(Frame& inFrame);

    Screen& screen;
    Frame* frame;
};

/// How a control follows the edges of its parent.
struct Growth {
    bool movesRight = false;
    bool movesDown = false;
    bool widens = false;
    bool heightens = false;
};

/// What all controls share. Places are relative to the parent.
class Control {
public:
    Control(const Control&) = delete;
    virtual ~Control() = default;

    ControlKind kind() const { return kind_; }
    Screen& screen() const { return screen_; }
    /// Null when the control stands on the screen itself.
    Frame* frame() const { return frame_; }
    const Rect& place() const { return place_; }

    /// True when it and all frames around it are visible.
    bool isShown() const;
    /// True when it and all frames around it are enabled.
    bool isUsable() const;

    Property<std::string, Control, Aspect::Caption> Caption;
    Property<bool, Control, Aspect::Visible> Visible;
    Property<bool, Control, Aspect::Enabled> Enabled;

    /// What it is called for those who cannot see it, where it has no caption of its own.
    std::string name;
    const std::string& captionOrName() const { return Caption().empty() ? name : Caption(); }

    /// Shown while the mouse rests on the control; empty for none.
    Property<std::string, Control, Aspect::ToolTip> ToolTip;

    /// The letter of the caption that with Alt does what a click does, or 0.
    char accessKey = 0;
    /// Esc does what a click on it does.
    bool isCancel = false;
    /// The key that does what a click does, wherever the keyboard is on the form; 0 for none.
    int shortcutKey = 0;
    /// What becomes of its place in a window that has been made larger.
    Growth onGrowth;
    /// In a list or tree whose rows may name files: the path in a row's text, or empty.
    std::function<std::string(const std::string& row)> fileOfRow;
    /// A file or folder was dropped on it.
    std::function<void(const std::string& path)> onDrop;

    Screen::Handler onMouseMove;
    /// The left button of the mouse, or what stands for it.
    virtual void mouseDown() {}
    virtual void mouseUp() {}
    virtual void click() {}

    void changed(Aspect aspect);

protected:
    Control(ControlKind kind, ControlParent parent, std::string caption, Rect place);

    void raise(const Screen::Handler& handler) const { screen_.dispatch(handler); }
    /// What a user does to a disabled control is nothing.
    void raiseIfUsable(const Screen::Handler& handler) const;

private:
    ControlKind kind_;
    Screen& screen_;
    Frame* frame_;
    Rect place_;
};

/// A group of controls: a page, a view, or (with a caption) a box around option buttons.
class Frame : public Control {
public:
    enum class Look { Page, Group };

    Frame(ControlParent parent, Rect place, bool visible = true);
    Frame(ControlParent parent, std::string caption, Rect place);

    Look look() const { return look_; }

    /// What goes on now is in it: its ground is tinted.
    Property<bool, Control, Aspect::Value> Current{*this, false};

private:
    Look look_;
};

} // namespace tarvelon
