#include "shutdown/power_action.h"

#include "platform/platform.h"
#include "platform/power.h"

namespace tarvelon {

namespace {

enum ExitFlags : std::uint32_t {
    exitShutDown = 1,
    exitReboot = 2,
    exitForce = 4,
    exitPowerOff = 8,
    exitForceIfHung = 16,
};

std::uint32_t exitFlags(std::int16_t action) {
    switch (action) {
    case 1:
        return exitShutDown;
    case 2:
        return exitShutDown | exitReboot;
    case 4:
        return exitForce;
    case 8:
        return exitShutDown | exitPowerOff;
    default:
        return 0;
    }
}

constexpr std::int16_t logOff = 4;

} // namespace

void PowerAction::ShutDown(std::int16_t action) {
    constexpr std::uint32_t enabledAndUsed = 0x80000003u;
    platform_.power.adjustPrivilege("SeShutdownPrivilege", enabledAndUsed);
    handleShutOff(action);
}

void PowerAction::handleShutOff(std::int16_t action) {
    if (action < 2) {
        platform_.power.setSystemPowerState(action != 0, true);
        return;
    }
    // Older systems force every program to end, newer ones only those that hang. The flags are added, so that
    // an older system's forced log-off comes out as 8.
    const bool forceAll = !isWin2kUp();
    const std::uint32_t flags = exitFlags(action) + (forceAll ? exitForce : exitForceIfHung);
    if (action == logOff && !isWinNT() && forceAll) {
        killDesktopProcess();
    }
    platform_.power.exitWindows(flags, 0xffffffffu);
}

bool PowerAction::isWin2kUp() const {
    return isWinNT() && platform_.power.version().major > 4;
}

bool PowerAction::isWinNT() const {
    return platform_.power.version().platformId == 2;
}

void PowerAction::killDesktopProcess() {
    constexpr std::uint32_t allAccess = 0x1f0fff;
    platform_.power.terminateProcess(platform_.power.desktopProcess(), allAccess, 1);
}

} // namespace tarvelon
