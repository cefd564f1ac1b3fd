#pragma once

#include "platform/win32/windows_api.h"
#include "ui/controls/controls.h"
#include "view/canvas.h"

#include <memory>

namespace tarvelon {

/// What all forms share.
struct ViewTools {
    Theme theme = currentTheme();
    Fonts fonts;
    BackBuffer buffer;
    ScaleCalls scaling;
};

class FormWindow;

/// The child window of one control. Its caption is read from the control whenever the system asks for it;
/// changes that are only seen are gathered and shown by `refresh`.
class ControlWindow {
public:
    ControlWindow(FormWindow& form, Control& control)
        : form_(form)
        , control_(control) {}
    ControlWindow(const ControlWindow&) = delete;
    virtual ~ControlWindow() = default;

    /// Makes the window, inside the frame's or the form's.
    void create(HWND parent, int id);
    /// Moves the window to its place and sets its type size, after creation and when the scale has changed.
    void arrange();

    /// The control has changed. What other programs and the keyboard can see is done at once.
    void changed(Aspect aspect);
    /// Shows the gathered changes.
    virtual void refresh();

    HWND window() const { return window_; }
    Control& control() const { return control_; }

    /// Messages that a child window sends to its parent about itself.
    virtual void notified(int) {}
    virtual void notifiedWith(const NMHDR&) {}
    virtual void drawRow(const DRAWITEMSTRUCT&) {}
    /// The colours of a standard window's own drawing; null for the system's.
    virtual HBRUSH colorStandardWindow(HDC) { return nullptr; }

    static ControlWindow* from(HWND window);

    bool waitsForRefresh = false;
    bool isFocused() const { return GetFocus() == window_; }
    /// Labels, bars, charts and frames do not.
    virtual bool takesKeys() const { return true; }
    /// A list or tree without rows.
    virtual bool isEmpty() const { return false; }

protected:
    struct Kind {
        const char* windowClass;
        DWORD style = 0;
        DWORD extendedStyle = 0;
    };
    virtual Kind kind() const = 0;

    virtual LRESULT handle(UINT message, WPARAM wide, LPARAM low);
    /// What the window's class does with the message.
    LRESULT handleAsClass(UINT message, WPARAM wide, LPARAM low);

    /// Draws the whole window. Classes that draw for themselves have `paintsItself` false.
    virtual void paint(Canvas&) {}
    virtual bool paintsItself() const { return true; }
    /// What the system is told when it asks for the window's text.
    virtual bool answersCaption() const { return true; }
    /// For windows that keep the caption themselves.
    virtual void applyCaption() {}
    virtual void applyValue() {}
    virtual void applyItems(Aspect) {}
    virtual void applyToolTip() {}
    virtual void arranged() {}

    Scale scale() const;
    ViewTools& tools() const;
    const Theme& theme() const { return tools().theme; }
    const Surface& surface() const;
    FormWindow& form() const { return form_; }
    void repaint() const { InvalidateRect(window_, nullptr, FALSE); }
    /// Draws over the edge of a window that has WS_BORDER.
    void paintThinEdge() const;
    /// The ring around what the keyboard goes to.
    void paintFocus(Canvas& canvas, const RECT& around, Color color) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM low);
    void paintNow();

    FormWindow& form_;
    Control& control_;
    HWND window_ = nullptr;
    WNDPROC classProcedure_ = nullptr;
};

/// Answers WM_GETTEXT: the caption, cut to what the buffer holds.
LRESULT copyCaption(const std::string& caption, WPARAM size, LPARAM buffer);

std::unique_ptr<ControlWindow> makeControlWindow(FormWindow& form, Control& control);

} // namespace tarvelon
