#include "ui/own_shortcuts.h"

#include "core/func_mod.h"
#include "core/globals.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "ui/short_cut.h"

namespace tarvelon {

OwnShortcuts::OwnShortcuts(const Services& services)
    : Services(services) {}

void OwnShortcuts::createAutoLoad() {
    const std::string path = shortCut::autoLoadShortcut(platform, globals.texts);
    if (globals.settings.useWsh == 1 || !funcMod.fileThere(path)) {
        make(path, {"/r", "Tarvelon"});
    }
}

void OwnShortcuts::createShutDown() {
    const std::string path = shutDownShortcut();
    if (!funcMod.fileThere(path)) {
        make(path, {"/s", "SecureShutDown"});
    }
    platform.dialogs.message({.text = "Success!"});
}

void OwnShortcuts::make(const std::string& linkPath, const Kind& kind) {
    constexpr std::int32_t show = 5;
    const std::string target = program();
    if (globals.settings.useWsh == 1) {
        shortCut::makeShortcutWsh(platform, linkPath, kind.description, target, kind.command);
    } else {
        // The blank has always stood in links of this kind; the command line is trimmed when it is read.
        shortCut::makeShortcut(platform, linkPath, target, "", std::string(" ") + kind.command, target, 0,
                               show);
    }
}

std::string OwnShortcuts::shutDownShortcut() {
    constexpr const char* fileName = "SecureShutDown.lnk";
    constexpr int desktop = 0;
    const Answer answer =
        platform.dialogs.message({.text = "Tarvelon will now create a shortcut for you to use the Secure "
                                          "ShutDown and Scan Feature.\r\n"
                                          "Would you like this shortcut on your Desktop?",
                                  .buttons = Buttons::YesNo});
    if (answer != Answer::Yes) {
        platform.dialogs.message(
            {.text = "Tarvelon will now create a SecureShutDown shortcut in your Tarvelon directory."});
        return globals.app.appPath + fileName;
    }
    const std::string folder = funcMod.getSpecialFolder(desktop);
    // A lone backslash is what a folder becomes that the system does not name.
    if (folder.empty() || folder == "\\") {
        platform.dialogs.message({.text = "Error: Could not find Desktop directory...Creating shortcut in "
                                          "Tarvelon directory."});
        return globals.app.appPath + fileName;
    }
    return globals.texts.withBackslash(folder) + fileName;
}

std::string OwnShortcuts::program() {
    const std::string name = globals.texts.bareName(platform.processes.programFile());
    return globals.app.appPath + name.substr(0, name.rfind('.')) + ".exe";
}

} // namespace tarvelon
