#include "core/application.h"
#include "platform/win32/win32_platform.h"

int main() {
    tarvelon::Win32Platform system;
    tarvelon::Platform platform = system.platform();
    tarvelon::Application application(platform);
    for (tarvelon::Screen* screen : application.screens()) {
        system.view().attach(*screen);
    }
    application.start();
    return system.runMessageLoop();
}
