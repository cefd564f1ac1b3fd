#pragma once

#include "platform/win32/task_bar.h"
#include "platform/win32/window_calls.h"
#include "ui/controls/controls.h"
#include "view/canvas.h"
#include "view/tip.h"

#include <optional>

namespace tarvelon {

/// What all forms share.
struct ViewTools {
    explicit ViewTools(const Theme& colours)
        : theme(colours) {}

    Theme theme;
    Fonts fonts;
    Brushes brushes;
    BackBuffer buffer;
    ScaleCalls scaling;
    TaskBar taskBar;
};

class FormWindow;

/// The child window of one control. Its caption is read from the control whenever the system asks for it;
/// changes that are only seen are gathered and shown by `refresh`.
class ControlWindow {
public:
    /// How the window is made, and what of its work is left to the class that the system has for it.
    struct Kind {
        const char* windowClass;
        DWORD style = 0; ///< With WS_TABSTOP where the keyboard goes to it.
        DWORD extendedStyle = 0;
        bool drawnByClass = false; ///< Its edge apart. Other windows are drawn whole, by `paint`.
        bool textIsCaption = true; ///< It is the answer when the system asks for the window's text.
    };

    ControlWindow(FormWindow& form, Control& control, const Kind& kind)
        : form_(form)
        , control_(control)
        , kind_(kind) {}
    ControlWindow(const ControlWindow&) = delete;
    virtual ~ControlWindow() = default;

    /// Makes the window, inside the frame's or the form's. The arrow keys do not leave a group.
    void create(HWND parent, int id, bool beginsGroup);
    /// Moves the window to its place and sets its type size, when the scale has changed.
    void arrange();

    /// The theme is another one.
    void followTheme();
    /// The control has changed. What other programs and the keyboard can see is done at once.
    void changed(Aspect aspect);
    /// Shows the gathered changes.
    void refresh();

    HWND window() const { return window_; }
    Control& control() const { return control_; }
    /// Sets or clears a style of the window.
    void setStyle(LONG style, bool wanted) const;

    /// Hands a message that a child window sent to its parent back to the child. Empty when it is none of
    /// these.
    static std::optional<LRESULT> reflect(UINT message, WPARAM wide, LPARAM low);
    /// What the window sends to its parent about itself.
    virtual void notified(int) {}
    virtual LRESULT notifiedWith(const NMHDR&) { return 0; }
    virtual void drawRow(const DRAWITEMSTRUCT&) {}
    /// The colours of a standard window's own drawing; null for the system's.
    virtual HBRUSH colorStandardWindow(HDC) { return nullptr; }

    static ControlWindow* from(HWND window);

    /// What an access key does: presses it, or gives it the keyboard.
    virtual void use() { SetFocus(window_); }

    bool isFocused() const { return GetFocus() == window_; }
    bool takesKeys() const { return (kind_.style & WS_TABSTOP) != 0; }
    /// A list or tree without rows.
    virtual bool isEmpty() const { return false; }

    bool waitsForRefresh = false;

protected:
    virtual LRESULT handle(UINT message, WPARAM wide, LPARAM low);
    /// What the window's class does with the message.
    LRESULT handleAsClass(UINT message, WPARAM wide, LPARAM low);

    virtual void paint(Canvas&) {}
    /// Draws around a standard window's inside.
    virtual void paintEdge(HDC dc, const RECT& whole, HBRUSH edge);
    /// For windows that keep the caption themselves.
    virtual void applyCaption() {}
    virtual void applyValue() {}
    virtual void applyItems(Aspect) {}
    /// Has a class that keeps more than a caption keep what the control has by now.
    virtual void follow() {}
    /// The place or the type size is a new one.
    virtual void arranged() {}

    const Scale& scale() const;
    ViewTools& tools() const;
    const Theme& theme() const { return tools().theme; }
    const Surface& surface() const;
    FormWindow& form() const { return form_; }
    void repaint() const { InvalidateRect(window_, nullptr, FALSE); }
    /// For measuring normal text.
    HDC textDc() const;
    void showToolTip(const std::string& text) { toolTip_.set(text, scale()(480)); }
    /// The square of a check box or the circle of an option button.
    struct Mark {
        bool round = false;
        bool ticked = false;
        bool usable = true;
        bool hovered = false;

        /// Width and height at 96 dots an inch.
        static constexpr int size = 16;
    };
    /// Draws the mark with its left edge at `left` pixels, in the middle of the canvas's height.
    void paintMark(Canvas& canvas, int left, const Mark& mark, const MarkColors& looks) const;
    /// The ring around what the keyboard goes to, while it does.
    void paintFocus(Canvas& canvas, const RECT& around, Color ground) const;
    /// The control's access key while the user wants to see those, else 0.
    char shownKey() const;
    /// What would fill an empty list, in the middle of it.
    void paintWhenEmpty(const std::string& text);

    /// Drawing is put off while it lives: rows come in one piece.
    class DrawingHeld {
    public:
        explicit DrawingHeld(ControlWindow& window)
            : window_(window)
            , held_(window.control().Visible()) {
            set(FALSE);
        }
        DrawingHeld(const DrawingHeld&) = delete;
        ~DrawingHeld() { set(TRUE); }

    private:
        void set(WPARAM draws) {
            if (held_) { // On a hidden window the message would bring it to light.
                window_.handleAsClass(WM_SETREDRAW, draws, 0);
            }
        }

        ControlWindow& window_;
        bool held_;
    };

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM low);
    void setTypeSize();
    HFONT normalFont() const;
    void paintNow();

    FormWindow& form_;
    Control& control_;
    Kind kind_;
    HWND window_ = nullptr;
    WNDPROC classProcedure_ = nullptr;
    ToolTip toolTip_;
};

/// A window that knows its control's own type.
template<class Own, class Base = ControlWindow>
class WindowOf : public Base {
public:
    using Base::Base;
    Own& control() const { return static_cast<Own&>(Base::control()); }
};

/// What the system is told that asks for a window's text or its length, cut to what its buffer holds.
std::optional<LRESULT> answerText(const std::string& caption, UINT message, WPARAM size, LPARAM buffer);

} // namespace tarvelon
