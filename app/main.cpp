#include "app/application.h"
#include "platform/win32/win32_platform.h"
#include "view/view.h"

int main() {
    tarvelon::Win32View view;
    tarvelon::Win32Platform system(view);
    tarvelon::Platform platform = system.platform();
    tarvelon::Application application(platform);
    for (tarvelon::Screen* screen : application.screens()) {
        view.attach(*screen);
    }
    application.start();
    return system.runMessageLoop();
}
