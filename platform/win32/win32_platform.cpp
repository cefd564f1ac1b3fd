#include "platform/win32/win32_platform.h"

#include "platform/win32/system_library.h"
#include "platform/win32/windows_api.h"

#include <objbase.h>

namespace tarvelon {

namespace {

/// Libraries loaded later are looked for in the system directory alone where the system can be told so, and
/// else at least not in the current folder, which may be anybody's.
void trustSystemDirectoryOnly() {
    const SystemLibrary kernel("kernel32.dll");
    constexpr DWORD searchSystem32 = 0x800;
    using SetDefaultDllDirectories = BOOL WINAPI(DWORD flags);
    if (const auto setDefault = kernel.find<SetDefaultDllDirectories>("SetDefaultDllDirectories")) {
        setDefault(searchSystem32);
    }
    using SetDllDirectory = BOOL WINAPI(LPCSTR path);
    if (const auto setDllDirectory = kernel.find<SetDllDirectory>("SetDllDirectoryA")) {
        setDllDirectory("");
    }
}

} // namespace

Win32Platform::Win32Platform(WindowHost& windows)
    : dialogs_(windows)
    , messages_(windows) {
    trustSystemDirectoryOnly();
    CoInitialize(nullptr);
}

Win32Platform::~Win32Platform() {
    CoUninitialize();
}

Platform Win32Platform::platform() {
    return {*codePage_,  *systemPage_, files_,  *folders_, *crypto_,    messages_, dialogs_,
            *processes_, *registry_,   *clock_, *shell_,   *shortcuts_, *power_,   *desktop_};
}

} // namespace tarvelon
