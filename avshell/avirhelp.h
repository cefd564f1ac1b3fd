#pragma once

#include "core/services.h"

#include <functional>
#include <string>

namespace tarvelon {

struct AVirHelpScreen;
struct SAvirScreen;
class Scanner;

/// What the catalogue calls beside itself.
struct AVirHelpHooks {
    std::function<void(const std::string&)> setWizardPath; ///< `vpath` of the wizard.
    std::function<void(const std::string&)> setWizardArgs; ///< `varg` of the wizard.
};

/// Finds the right file of a known product on the disk, tests it, and hands it to the choice of scanners.
class AVirHelp : Services {
public:
    AVirHelp(AVirHelpScreen& screen, SAvirScreen& scanners, const Services& services, const Scanner& scanner);

    AVirHelpHooks hooks;

    /// Opens the window for the first or the second scanner.
    void show(bool forSecond);
    /// Opens it for the one it was opened for last, which is the first unless the window was hidden half-way.
    void showAsItStands();

private:
    void bind();
    void search();
    void testFound();
    void useFound();
    void useForFirst(const std::string& path);
    void useForSecond(const std::string& path);
    void showSupportPage();

    AVirHelpScreen& screen_;
    SAvirScreen& scanners_;
    const Scanner& scanner_;
    bool forSecond_ = false; ///< The window's tag.
};

} // namespace tarvelon
