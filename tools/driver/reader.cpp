#include "reader.h"

#include "seen_windows.h"

#include <oleacc.h>

#include <stdexcept>

namespace e2e {

Told askAsReader(HWND control) {
    CoInitialize(nullptr);
    IAccessible* reader = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                          reinterpret_cast<void**>(&reader)))) {
        throw std::runtime_error("\"" + textOf(control) + "\" tells readers nothing");
    }
    VARIANT self{};
    VARIANT role{};
    VARIANT state{};
    BSTR name = nullptr;
    BSTR keys = nullptr;
    self.vt = VT_I4;
    reader->get_accRole(self, &role);
    reader->get_accState(self, &state);
    reader->get_accName(self, &name);
    reader->get_accKeyboardShortcut(self, &keys);
    reader->Release();
    Told told{name ? narrow(name) : "", keys ? narrow(keys) : "", role.lVal, state.lVal};
    SysFreeString(name);
    SysFreeString(keys);
    return told;
}

HWND keyboardFocus() {
    GUITHREADINFO keyboard{};
    keyboard.cbSize = sizeof keyboard;
    GetGUIThreadInfo(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), &keyboard);
    return keyboard.hwndFocus;
}

} // namespace e2e
