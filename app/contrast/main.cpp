// The program as it is on a desktop of high contrast, which Wine does not know.

#include "app/run.h"

int main() {
    return tarvelon::run(tarvelon::ThemeKind::HighContrast);
}
