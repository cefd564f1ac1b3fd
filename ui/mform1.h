#pragma once

namespace tarvelon {

class Control;
struct MForm1Screen;
struct Platform;
class NavButton;
class Frame;

/// The main window's frame: which page is open, and the actions that have no page.
class MForm1 {
public:
    MForm1(MForm1Screen& screen, Platform& platform);

    /// Hides all pages.
    void norms2();

private:
    void bind();
    void open(NavButton& entry, Frame& page);
    void cAbout_Click();

    MForm1Screen& screen_;
    Platform& platform_;
};

} // namespace tarvelon
