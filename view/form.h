#pragma once

#include "view/control.h"

#include <shellapi.h>

#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarvelon {

constexpr const char* formWindowClass = "TarvelonForm";
constexpr const char* frameWindowClass = "TarvelonFrame";

/// The top-level window of one screen, with all its child windows.
class FormWindow {
public:
    FormWindow(Screen& screen, ViewTools& tools);
    FormWindow(const FormWindow&) = delete;
    ~FormWindow();

    void changed(Aspect aspect);
    void changed(Control& control, Aspect aspect);

    /// Shows what has changed since the last time.
    void refresh();
    /// The same, unless that was less than a thirtieth of a second ago.
    void refreshIfDue();
    /// A control's window has got the keyboard, and gets it again when the form comes back.
    void keepFocus(HWND control) { focusKept_ = control; }
    /// Gives the keyboard to something if what had it can have it no longer. While a long file is read, no
    /// refresh may come for a while.
    void settleFocus();
    /// Makes the controls of a page that has not been shown yet; false when all have been made.
    bool makeReady();
    /// Notes that a control's window is to be refreshed.
    void refreshLater(ControlWindow& window);

    /// Keys and dialog navigation. True when that was all there is to do with the message.
    bool takes(MSG& message);
    /// A control's window comes or goes, or can or cannot be used: the keyboard must not stay where it is of
    /// no use.
    void followFocus(const ControlWindow& window);
    /// A list with the keyboard has lost its rows: unless it has others by then, the next control gets it.
    void leaveIfEmpty(const ControlWindow& list) { emptied_ = &list; }
    /// Stays in front of the other form's window, and goes with it when that is minimised; null for none.
    void belongTo(HWND owner);
    /// A box or a system dialog is open, or no longer: the form cannot be used meanwhile.
    void setBlocked(bool blocked);
    void themeChanged();

    HWND window() const { return window_.get(); }
    Screen& screen() const { return screen_; }
    ViewTools& tools() const { return tools_; }
    const Scale& scale() const { return scale_; }
    /// In its parent, in pixels: some controls follow the edges of a window that has been made larger.
    RECT placeOf(const Control& control) const;
    /// A frame with navigation buttons in it is the navigation column.
    bool isNavigation(const Frame& frame) const;
    /// The letters that Alt goes with are underlined.
    bool showsAccessKeys() const { return showsAccessKeys_; }
    ControlWindow* windowOf(const Control& control) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM low);
    LRESULT handle(UINT message, WPARAM wide, LPARAM low);

    void createWindow();
    bool isDue() const;
    bool wakeIfAnythingWaits();
    void showChanges();
    void createControls(const Frame* within);
    void createFrame(Frame& frame);
    HWND parentOf(const Control& control) const;
    int idOf(const Control& control) const;
    void applyVisible();
    void applyMinimized();
    void bringToFront();
    bool canUseKeys(HWND window) const;
    void applyTimer(const Control& timer);
    void scaleTo(unsigned dotsPerInch, const RECT& place);
    SIZE outerSize(int width, int height) const;
    void placeFirst();
    void placed();
    void sized(SIZE inside);
    SIZE extraIn(const Frame* frame) const;
    void hide();
    void timerFired(UINT_PTR id);
    void activated(bool active);
    void giveFocus();
    void moveFocus(WPARAM wide, LPARAM low);
    void showAccessKeys(bool wanted);
    bool isOwnKey(const MSG& message);
    void dropped(HDROP drop);
    const Control* dropTargetAt(POINT inside) const;
    bool pressFirst(const std::function<bool(const Control&)>& isWanted, bool takesFocus = false);

    Screen& screen_;
    ViewTools& tools_;
    Scale scale_{96};
    HWND focusKept_ = nullptr; ///< Had the keyboard last on this form.
    HWND cameFrom_ = nullptr;  ///< The form that had the keyboard when this one came to light.
    SIZE extra_{};             ///< Pixels by which the inside is larger than the screen.
    RECT placeBefore_{};       ///< Of the window, when the user began to move or size it.
    bool isPlaced_ = false;
    bool showsAccessKeys_ = false;
    bool focusLost_ = false; ///< What had the keyboard can have it no longer.
    bool blocked_ = false;
    const ControlWindow* emptied_ = nullptr;
    const Control* pageShown_ = nullptr; ///< The frame that came to light last.
    // What is never shown costs nothing: windows are made when their frame first comes to light, or when the
    // program rests.
    std::unordered_map<const Control*, std::unique_ptr<ControlWindow>> controls_;
    std::unordered_set<const Frame*> created_; ///< The controls in these have windows; null for the form.

    std::vector<ControlWindow*> waiting_; ///< To be refreshed.
    bool captionWaits_ = false;
    bool timerRuns_ = false; ///< The one that refreshes when nothing else does.
    DWORD refreshedAt_ = 0;  ///< Milliseconds of the system's tick count.

    OwnedWindow window_; ///< The first to go: its child windows lean on all else.
};

} // namespace tarvelon
