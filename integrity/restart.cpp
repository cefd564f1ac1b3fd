#include "integrity/restart.h"

#include "core/globals.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/processes.h"

namespace tarvelon {

void restartWithoutBackup(Globals& globals, Platform& platform, const std::string& backup) {
    platform.dialogs.message({.text = "Tarvelon needs to be re-started"});
    platform.files.remove(backup);
    platform.processes.start(globals.app.appPath + "TarvelonLow.exe", "", WindowStyle::MinimizedFocus);
    platform.processes.end();
}

} // namespace tarvelon
