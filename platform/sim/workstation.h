#pragma once

#include "platform/platform.h"
#include "platform/sim/faults.h"
#include "platform/sim/sim_clock.h"
#include "platform/sim/sim_codepage.h"
#include "platform/sim/sim_crypto.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_dialogs.h"
#include "platform/sim/sim_files.h"
#include "platform/sim/sim_folders.h"
#include "platform/sim/sim_messages.h"
#include "platform/sim/sim_power.h"
#include "platform/sim/sim_processes.h"
#include "platform/sim/sim_registry.h"
#include "platform/sim/sim_shell.h"
#include "platform/sim/sim_shortcuts.h"
#include "platform/sim/sim_view.h"

namespace tarvelon {

/// A simulated Windows workstation. Its services are open to the test, which sets them up, scripts them and
/// reads what happened; the program under test gets `platform()`.
class SimWorkstation {
public:
    /// Drive C is a temporary folder with the system's usual folders, removed at the end.
    SimWorkstation();
    /// Drive C is this host folder, taken as it is and kept.
    explicit SimWorkstation(const std::string& hostFolder);
    SimWorkstation(const SimWorkstation&) = delete;
    ~SimWorkstation();

    Platform& platform() { return platform_; }

    /// The screen's timers run from now on.
    void attach(Screen& screen) { view.attach(screen); }

    Faults faults;
    SimClock clock;
    SimCodePage codePage{SimCodePage::Page::Utf8}; ///< Of the process.
    SimCodePage systemPage;                        ///< The ANSI page of the system.
    SimFiles files;
    SimFolders folders{faults};
    SimCrypto crypto{faults};
    SimView view{clock};
    SimMessages messages{clock, view};
    SimDialogs dialogs;
    SimProcesses processes{faults};
    SimRegistry registry{faults, codePage};
    SimShell shell{faults, files};
    SimShortcuts shortcuts{faults, files};
    SimPower power{faults};
    SimDesktop desktop;

private:
    Platform platform_{codePage,  systemPage, files, folders, crypto,    messages, dialogs,
                       processes, registry,   clock, shell,   shortcuts, power,    desktop};
    std::string ownFolder_; ///< Empty when the folder was given.
};

} // namespace tarvelon
