#pragma once

#include <functional>
#include <string>

namespace tarvelon {

struct Globals;
struct Platform;
struct SAvirScreen;
class SettingsFile;
class Utilities;

/// What the choice of scanners calls beside itself.
struct SAvirHooks {
    std::function<void(const std::string&)> setWizardArgs; ///< `varg` of the wizard.
    std::function<void(bool forSecond)> showHelp;          ///< The catalogue, for one of the two scanners.
};

/// The window where the user names the one or two scanners.
class SAvir {
public:
    SAvir(SAvirScreen& screen, Globals& globals, Platform& platform, SettingsFile& settings,
          const Utilities& utilities);

    SAvirHooks hooks;

    void norms();

private:
    void bind();
    std::string choose() const;
    void cChoose_Click();
    void cButton10_Click();
    void cButton3_Click();
    const char* argumentsForFirst();

    SAvirScreen& screen_;
    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    const Utilities& utilities_;
};

} // namespace tarvelon
