#pragma once

#include <string>

namespace tarvelon {

class Application;

/// The load handler of the main window: fixes the paths, sees to the files, reads the settings, and hands
/// over by the command line. Exactly "/r", "/s" and "/a" are switches; anything else opens the main window.
class StartUp {
public:
    explicit StartUp(Application& application)
        : app_(application) {}

    void run();

private:
    void fixPaths();
    void ensureFolder(const std::string& folder);
    void tellUnwritableData();
    void actOnCommandLine();
    void checkAtLogOn();
    void demandBaseline(const char* message);

    Application& app_;
};

} // namespace tarvelon
