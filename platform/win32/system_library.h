#pragma once

#include "platform/win32/owned.h"

namespace tarvelon {

/// A library of the system, loaded by its full path in the system directory, so that a file of the same name
/// elsewhere is never taken. What newer systems alone have is looked up here instead of being imported.
class SystemLibrary {
public:
    explicit SystemLibrary(const char* fileName);

    /// The exported function, or null where this system does not have it.
    template<class Function>
    Function* find(const char* name) const {
        // NOLINTNEXTLINE(bugprone-casting-through-void): a plain cast between functions is warned of.
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(address(name)));
    }

private:
    FARPROC address(const char* name) const;

    OwnedLibrary module_;
};

} // namespace tarvelon
