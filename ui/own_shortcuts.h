#pragma once

#include "core/services.h"

#include <string>

namespace tarvelon {

/// The two shortcuts that the program makes to itself, in the way that the settings say. A shortcut that
/// cannot be made is not reported: the user sees it missing and tries the other way.
class OwnShortcuts : Services {
public:
    explicit OwnShortcuts(const Services& services);

    /// The one in the Startup folder, that runs the check at every log-on. The shell-link way leaves a file
    /// alone that is there already.
    void createAutoLoad();

    /// Asks where the shortcut that shuts the machine down shall lie, and makes it unless it lies there.
    void createShutDown();

private:
    struct Kind {
        const char* command;     ///< The program's switch.
        const char* description; ///< As the scripting host is told.
    };

    void make(const std::string& linkPath, const Kind& kind);
    std::string shutDownShortcut();
    std::string program();
};

} // namespace tarvelon
