#include "platform/win32/common_controls.h"

#include "platform/win32/windows_api.h"

#include <commctrl.h>

#include <utility>

namespace tarvelon {

void needCommonControls() {
    static bool known = false;
    if (std::exchange(known, true)) {
        return;
    }
    // By its bare name the system takes the version that the program's manifest asks for. It is one of those
    // libraries that never come from a program's folder.
    const HMODULE library = LoadLibraryA("comctl32.dll");
    using Init = BOOL WINAPI(const INITCOMMONCONTROLSEX*);
    // NOLINTNEXTLINE(bugprone-casting-through-void): a plain cast between functions is warned of.
    const auto init = reinterpret_cast<Init*>(
        reinterpret_cast<void*>(library ? GetProcAddress(library, "InitCommonControlsEx") : nullptr));
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_PROGRESS_CLASS | ICC_TREEVIEW_CLASSES};
    if (init) {
        init(&wanted);
    }
}

} // namespace tarvelon
