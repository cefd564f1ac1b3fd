#pragma once

#include <functional>

namespace tarvelon {

class Frame;
class NavButton;
struct Globals;
struct MForm1Screen;
struct Platform;

/// What the main window calls beside itself.
struct MForm1Hooks {
    std::function<void()> loadSettings;
    std::function<void()> showCustomFolders;
    std::function<void()> showScanners;
    std::function<void()> regPageOpened;
    std::function<void()> advancedPageOpened;
    std::function<void()> startPageOpened;
};

/// The main window's frame: which page is open, the hover reset, and the actions that have no other home.
class MForm1 {
public:
    MForm1(MForm1Screen& screen, const Globals& globals, Platform& platform);

    MForm1Hooks hooks;

    /// Takes the hover look off all flat controls.
    void norms();

    /// Hides all pages.
    void norms2();

    /// A page of the help, by its file's name.
    void showHelp(const char* page);

private:
    void bind();
    void bindPages();
    void bindHover();
    void open(NavButton* entry, Frame& page);
    void backToOptions(Frame& page);

    void showAbout();
    void siteClick();
    void visitMaker(const char* address);
    void writeToSupport();
    void checkForUpdates();

    MForm1Screen& screen_;
    const Globals& globals_;
    Platform& platform_;
};

} // namespace tarvelon
