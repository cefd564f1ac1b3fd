#pragma once

#include "ui/controls/geometry.h"
#include "ui/controls/property.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

class Control;
class Screen;

/// Draws screens and hears of every change to them.
class ScreenListener {
public:
    virtual ~ScreenListener() = default;
    virtual void loaded(Screen& screen) = 0;
    virtual void changed(Screen& screen, Aspect aspect) = 0;
    virtual void changed(Control& control, Aspect aspect) = 0;
};

/// Where a window stands: its corner in pixels of the desktop, and its inside at 96 dots an inch.
struct ScreenPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// A window as data: its caption, its size and its controls, known to all layers. Behaviour is bound to it
/// from above. A screen is loaded once, on first use, and afterwards only shown and hidden.
class Screen {
public:
    using Handler = std::function<void()>;

    Screen(std::string caption, int width, int height);
    Screen(const Screen&) = delete;
    virtual ~Screen() = default;

    Property<std::string, Screen, Aspect::Caption> Caption;
    /// Use `show` and `hide`, which load the screen first.
    Property<bool, Screen, Aspect::Visible> Visible;
    /// The window is minimised, by code or by the user (the view keeps it so).
    Property<bool, Screen, Aspect::Value> Minimized;

    /// Runs the load handler if the screen has not been loaded yet.
    void load();
    /// Brings the screen to light, at its full size and in front of all others, also when it is shown
    /// already.
    void show();
    /// Brings it to light as an icon.
    void showMinimized();
    /// A screen that is hidden by its own load handler stays hidden.
    void hide();
    /// True when the load handler, or something it called, asked for the screen to stay unseen.
    bool hiddenWhileLoading() const { return hiddenWhileLoading_; }

    /// The inside of the window, without its frame.
    int width() const { return width_; }
    int height() const { return height_; }
    const std::vector<Control*>& controls() const { return controls_; }

    Handler onLoad;
    /// The close box: true lets the screen go (it is hidden), false keeps it.
    std::function<bool()> onQueryClose;
    /// The mouse moved over the screen's own surface.
    Handler onMouseMove;
    std::function<void(int keyCode)> onKeyDown;
    std::function<void(int keyCode)> onKeyUp;

    /// F1: the help of what is shown.
    Handler onHelp;

    /// What the close box does: asks `onQueryClose`, and hides the screen when that agrees.
    void close();

    /// While it is held, the close box only notes that the screen is to be closed.
    void holdClosing(bool held) { closingHeld_ = held; }
    /// Does what the close box could not do while it was held.
    void closeIfWanted();

    /// False for a dialog: its frame has no button for that, and Esc does what its close box does.
    bool canMinimize = true;

    /// Of what is no dialog: Esc does what its close box does, where no control is for that.
    bool closesByEsc = false;

    /// The user can make the window larger than it is at first, and never smaller.
    bool canGrow = false;

    /// Where its window was when it was left, asked for when it first comes to light; empty for the middle.
    std::function<std::optional<ScreenPlace>()> placeBefore;
    /// The user has moved or sized the window.
    std::function<void(const ScreenPlace&)> onPlaced;

    /// Set once by `Application`: runs every handler, so that a failure in one is told to the user in one
    /// place. Unset, handlers run bare.
    std::function<void(const Handler&)> dispatcher;
    ScreenListener* listener = nullptr;

    void dispatch(const Handler& handler) const;
    void changed(Aspect aspect);
    /// Called by the controls' own constructors.
    void add(Control& control) { controls_.push_back(&control); }

private:
    int width_;
    int height_;
    bool loading_ = false;
    bool loaded_ = false;
    bool hiddenWhileLoading_ = false;
    bool closingHeld_ = false;
    bool closeWanted_ = false;
    std::vector<Control*> controls_;
};

} // namespace tarvelon
