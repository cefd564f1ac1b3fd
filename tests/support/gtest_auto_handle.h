#pragma once

// GoogleTest's death tests use its AutoHandle, which it declares only where it counts on threads.
// Force-included into its own sources in the Windows builds.
#include "gtest/internal/gtest-port.h"

#include <windows.h>

namespace testing::internal {

class AutoHandle {
public:
    AutoHandle() = default;
    explicit AutoHandle(HANDLE handle)
        : handle_(handle) {}
    AutoHandle(const AutoHandle&) = delete;
    ~AutoHandle() { Reset(); }

    HANDLE Get() const { return handle_; }
    void Reset(HANDLE handle = INVALID_HANDLE_VALUE) {
        if (handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE) {
            CloseHandle(handle_);
        }
        handle_ = handle;
    }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

} // namespace testing::internal
