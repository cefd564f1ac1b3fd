#pragma once

#include <cstdint>

namespace tarvelon {

struct Platform;

/// Carries out the choice of a shut-down. Nothing that the system answers is looked at: refused, the machine
/// just goes on.
class PowerAction {
public:
    explicit PowerAction(Platform& platform)
        : platform_(platform) {}

    /// Takes the right to shut down and acts: 0 hibernates, 1 suspends, 2 restarts, 4 logs off, 8 turns off.
    void ShutDown(std::int16_t action);

private:
    void handleShutOff(std::int16_t action);
    bool isWin2kUp() const;
    bool isWinNT() const;
    void killDesktopProcess();

    Platform& platform_;
};

} // namespace tarvelon
