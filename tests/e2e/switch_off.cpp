// Lets Secure Shut Down take the system down, and waits for what the system then tells every window:
//
//     switch_off PROGRAM CHOICE
//
// With the choice "Turn Off" nothing is found, and the system goes at once. With "Restart" a file is pending
// for the next start, and the two minutes that this gives are cut short. Ends with 0 when the system goes
// down.

#include "hidden_window.h"
#include "recorder.h"
#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <cstdio>

namespace {

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_ENDSESSION && wide != 0) {
        // At once, since the system ends this program as soon as it has answered.
        ExitProcess((low & static_cast<LPARAM>(ENDSESSION_LOGOFF)) == 0 ? 0 : 1);
    }
    return DefWindowProcA(window, message, wide, low);
}

void chooseAndWait(const std::string& choice) {
    using namespace e2e;
    const bool findings = choice == "Restart";
    const ProgramFolder folder("switch-off");
    // There must be a scanner, or the program says that there is none.
    const RecordingScanner scanner(folder.path() + "scanner.exe");
    folder.writeSettings({{"antivirus", scanner.path() + "|"}});
    folder.writeData("Integrity.dat", smallBaseline("DLL", ""));
    const PlantedFile pending(folder.path() + "pending.tmp", "");
    const PlantedFile wininit("C:\\windows\\wininit.ini",
                              findings ? "[Rename]\r\nNUL=" + pending.path() + "\r\n" : "");
    HWND const window = makeHiddenWindow(onMessage);
    const Program program(folder.program(), "/s");
    program.press(choice);
    if (findings) {
        program.play(
            {{"", "Status: Some files were scanned...Shutting Down in 2 minutes"}, {"ShutDown Now"}});
    }
    SetTimer(window, 1, static_cast<UINT>(patience.count()), nullptr);
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0 && message.message != WM_TIMER) {
        DispatchMessageA(&message);
    }
    throw NotSeen("the system does not go down; " + program.describe());
}

} // namespace

int main(int, char** arguments) {
    try {
        e2e::setInputs(arguments[1]);
        chooseAndWait(arguments[2]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    return 1;
}
