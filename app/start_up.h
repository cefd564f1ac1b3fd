#pragma once

#include <functional>
#include <string>

namespace tarvelon {

struct Globals;
struct Platform;
class SettingsFile;
class Utilities;

/// What the start-up calls above itself, in the order of the calls.
struct StartUpHooks {
    std::function<void()> checkIntFile;
    std::function<void()> checkRegFile;
    std::function<void()> loadSettings;
    std::function<void()> setDatName;
    std::function<void()> loadIntFile;
    std::function<void()> hideMainWindow;
    std::function<void()> showScan; ///< Makes the scan window visible.
    std::function<void()> loadUp;   ///< Plans a scan and starts it.
    std::function<void()> minimizeScan;
    std::function<void()> showLogoff; ///< Shows the shut-down dialog.
    std::function<void()> preShut0;   ///< Begins the scheduled sequence without the dialog.
};

/// The load handler of the main window: fixes the paths, sees to the files, reads the settings, and hands
/// over by the command line. Exactly "/r", "/s" and "/a" are switches; anything else opens the main window.
class StartUp {
public:
    StartUp(Globals& globals, Platform& platform, SettingsFile& settings, const Utilities& utilities)
        : globals_(globals)
        , platform_(platform)
        , settings_(settings)
        , utilities_(utilities) {}

    StartUpHooks hooks;

    void run();

private:
    void fixPaths();
    void ensureFolder(const std::string& folder);
    void actOnCommandLine();
    void demandBaseline(const char* message);

    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    const Utilities& utilities_;
};

} // namespace tarvelon
