// Chooses "Turn Off" in Secure Shut Down on a workstation where nothing is found, and waits for what the
// system tells every window when it goes down: switch_off PROGRAM
//
// Ends with 0 when it was told.

#include "driver.h"
#include "workplace.h"

#include <cstdio>

namespace {

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_ENDSESSION && wide != 0) {
        // At once, since the system ends this program as soon as it has answered.
        ExitProcess((low & static_cast<LPARAM>(ENDSESSION_LOGOFF)) == 0 ? 0 : 1);
    }
    return DefWindowProcA(window, message, wide, low);
}

HWND makeHiddenWindow() {
    WNDCLASSA kind{};
    kind.lpfnWndProc = onMessage;
    kind.hInstance = GetModuleHandleA(nullptr);
    kind.lpszClassName = "SwitchOff";
    RegisterClassA(&kind);
    return CreateWindowA(kind.lpszClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, kind.hInstance,
                         nullptr);
}

void chooseTurnOffAndWait(const std::string& programFile) {
    using namespace e2e;
    setInputs({programFile, ""});
    const ProgramFolder folder("switch-off");
    // There must be a scanner, or the program says that there is none; without findings it is not started.
    folder.writeSettings({{"antivirus", folder.program() + "|"}});
    folder.writeData("Integrity.dat", smallBaseline("DLL", ""));
    HWND const window = makeHiddenWindow();
    const Program program(folder.program(), "/s");
    program.form("Secure Shut Down").click("Turn Off");
    SetTimer(window, 1, static_cast<UINT>(patience.count()), nullptr);
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER) {
        DispatchMessageA(&message);
    }
    throw NotSeen("the system does not go down; " + program.describe());
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("usage: switch_off PROGRAM\n", stderr);
        return 2;
    }
    try {
        chooseTurnOffAndWait(arguments[1]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    return 1;
}
