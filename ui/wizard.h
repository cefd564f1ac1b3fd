#pragma once

#include "core/services.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tarvelon {

class Control;
class Label;
struct SAvirScreen;
struct WizardScreen;
class Scanner;

/// What the wizard calls beside itself.
struct WizardHooks {
    std::function<void()> showCatalogue;  ///< For the first scanner.
    std::function<void()> createAutoLoad; ///< Makes the log-on shortcut in the way that is set.
    std::function<void()> createShutDown; ///< Makes the shut-down shortcut, with its questions.
};

/// Walks a new user through the main settings. Nothing is written before the last page's Save.
class Wizard : Services {
public:
    Wizard(WizardScreen& screen, const Services& services, const Scanner& scanner, SAvirScreen& scanners);

    WizardHooks hooks;

    /// Opens the wizard on its first page, with the settings as they are.
    void LoadUp();

    /// The user has chosen a scanner's file, or none: empty.
    void take(const std::string& file);

    /// Hides the controls of all pages and shows the way on and back.
    void norms();

    /// Shows the page whose number is set.
    void NextFrame();

private:
    /// The label that the mouse is on, or what was done with it last.
    enum Hover : std::int16_t { None = 0, Back = 1, Cancel = 2, Next = 3, Released = 6 };

    void bind();
    void bindStep(Label& label, Hover number);
    void light(const Label* lit);
    void showPage(const char* title, const std::string& text, const std::vector<Control*>& controls);
    void showLastPage();

    void next();
    void cancel();
    void locate();
    void save();

    WizardScreen& screen_;
    const Scanner& scanner_;
    SAvirScreen& scanners_;

    std::int16_t page_ = 0;      ///< 0 to 8.
    std::int32_t startTime_ = 0; ///< Whole seconds since midnight.
    Hover hover_ = None;
};

} // namespace tarvelon
