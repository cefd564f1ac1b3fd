#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarvelon {

/// What can be told to fail, one for each call of the platform that has a failing result.
enum class Operation {
    ListFolder,
    OpenFile,
    LengthOfOpenFile,
    LastWrite,
    ReadFile,
    WriteFile,
    WriteFileHalf, ///< Half of the bytes reach the disk before the call fails.
    FillDisk,      ///< The disk takes half of what the file is to grow by; from then on nothing grows.
    SetLength,
    Flush,
    LengthByName,
    MoveFile,
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
    /// The n-th call from now ends the process, as if someone had pulled the plug.
    void endNth(Operation operation, int n);
    /// Every call from now on fails.
    void failAlways(Operation operation);
    void clear(Operation operation);

    /// Calls so far, failed ones included.
    int calls(Operation operation) const;

    /// For the simulated services: notes the call, and tells whether it is to fail.
    bool strikes(Operation operation);
    /// For the simulated files, of which one is to grow: by how many bytes the disk lets it.
    std::uint64_t roomFor(std::uint64_t bytes);
    /// A file has given bytes up.
    void giveBack(std::uint64_t bytes);

private:
    struct Plan {
        int calls = 0;
        int failingCall = 0; ///< 0: none.
        bool ends = false;   ///< In place of failing.
        bool always = false;
    };
    Plan& plan(Operation operation) { return plans_[static_cast<std::size_t>(operation)]; }

    std::array<Plan, static_cast<std::size_t>(Operation::count_)> plans_{};
    std::optional<std::uint64_t> room_; ///< On a disk that has been filled.
};

} // namespace tarvelon
