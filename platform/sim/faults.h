#pragma once

#include <array>
#include <cstddef>

namespace tarvelon {

/// What can be told to fail, one for each call of the platform that has a failing result.
enum class Operation {
    ListFolder,
    OpenFile,
    LengthOfOpenFile,
    LastWrite,
    ReadFile,
    WriteFile,
    SetLength,
    LengthByName,
    CopyFile,
    RemoveFile,
    CreateFolder,
    SearchTree,
    ShortPath,
    SystemDirectory,
    WindowsDirectory,
    SpecialFolder,
    AcquireContext,
    CreateHash,
    HashData,
    GetHashParam,
    DestroyHash,
    StartProcess,
    OpenKey,
    EnumKey,
    EnumValue,
    QueryValue,
    DeleteValue,
    CloseKey,
    OpenDocument,
    SaveShellLink,
    SaveScripted,
    SetPowerState,
    ExitWindows,
    count_,
};

/// Counts the platform's calls and makes chosen ones fail.
class Faults {
public:
    /// The n-th call from now fails, once; 1 is the next.
    void failNth(Operation operation, int n);
    /// Every call from now on fails.
    void failAlways(Operation operation);
    void clear(Operation operation);

    /// Calls so far, failed ones included.
    int calls(Operation operation) const;

    /// For the simulated services: notes the call, and tells whether it is to fail.
    bool strikes(Operation operation);

private:
    struct Plan {
        int calls = 0;
        int failingCall = 0; ///< 0: none.
        bool always = false;
    };
    Plan& plan(Operation operation) { return plans_[static_cast<std::size_t>(operation)]; }

    std::array<Plan, static_cast<std::size_t>(Operation::count_)> plans_{};
};

} // namespace tarvelon
