#include "app/run.h"

int main() {
    return tarvelon::run(tarvelon::wantedTheme());
}
