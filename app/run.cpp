#include "app/run.h"

#include "app/application.h"
#include "platform/win32/win32_platform.h"
#include "view/view.h"

namespace tarvelon {

int run(ThemeKind theme) {
    Win32View view(theme);
    Win32Platform system(view);
    Platform platform = system.platform();
    Application application(platform);
    for (Screen* screen : application.screens()) {
        view.attach(*screen);
    }
    application.start();
    return system.runMessageLoop();
}

} // namespace tarvelon
