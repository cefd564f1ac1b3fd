#include "view/theme.h"

#include "platform/win32/system_library.h"

namespace tarvelon {

namespace {

bool isHighContrast() {
    HIGHCONTRASTA state{};
    state.cbSize = sizeof state;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof state, &state, 0) &&
           (state.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// The user has chosen dark programs. Older systems know no such choice.
bool isDark() {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, R"(Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)", 0,
                      KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) {
        return false;
    }
    DWORD type = 0;
    DWORD light = 1;
    DWORD size = sizeof light;
    const LONG result =
        RegQueryValueExA(key, "AppsUseLightTheme", nullptr, &type, reinterpret_cast<BYTE*>(&light), &size);
    RegCloseKey(key);
    return result == ERROR_SUCCESS && type == REG_DWORD && light == 0;
}

Theme systemTheme() {
    const auto system = [](int index) { return static_cast<Color>(GetSysColor(index)); };
    const Color ground = system(COLOR_WINDOW);
    const Color text = system(COLOR_WINDOWTEXT);
    const Color chosen = system(COLOR_HIGHLIGHT);
    const Color chosenText = system(COLOR_HIGHLIGHTTEXT);
    const Color face = system(COLOR_BTNFACE);
    const Face plain{face, face, face, face, system(COLOR_BTNTEXT)};
    const Surface window{.ground = ground,
                         .text = text,
                         .quietText = text,
                         .disabledText = system(COLOR_GRAYTEXT),
                         .mark = {ground, text, chosen, chosenText},
                         .buttons = {plain, plain, plain, plain}};
    const ToneColors sign{text, ground};
    return {
        .highContrast = true,
        .page = window,
        .card = window,
        .current = window,
        .navigation = window,
        .captions = std::nullopt,
        .tones = {sign, sign, sign, sign, sign},
        .line = text,
        .border = text,
        .focus = chosen,
        .field = ground,
        .fieldText = text,
        .fieldQuietText = text,
        .selected = chosen,
        .selectedText = chosenText,
        .selectedElsewhere = chosen,
        .selectedElsewhereText = chosenText,
        .link = system(COLOR_HOTLIGHT),
        .standby = plain,
        .turnOff = plain,
        .restart = plain,
        .track = ground,
        .bar = chosen,
        .chartBar = text,
        .navigationHover = ground,
        .navigationCurrent = chosen,
        .navigationCurrentText = chosenText,
    };
}

} // namespace

ThemeKind wantedTheme() {
    if (isHighContrast()) {
        return ThemeKind::HighContrast;
    }
    return isDark() ? ThemeKind::Dark : ThemeKind::Light;
}

Theme themeFor(ThemeKind kind) {
    switch (kind) {
    case ThemeKind::HighContrast:
        return systemTheme();
    case ThemeKind::Dark:
        return darkTheme;
    case ThemeKind::Light:
        break;
    }
    return lightTheme;
}

void darkenTitleBar(HWND window, const Theme& theme) {
    using DwmSetWindowAttribute = HRESULT WINAPI(HWND, DWORD, LPCVOID, DWORD);
    constexpr DWORD useImmersiveDarkMode = 20;
    static bool wasDark = false;
    if (!theme.dark && !wasDark) {
        return; // Nothing to load a library for.
    }
    wasDark = true;
    static const SystemLibrary manager("dwmapi.dll");
    if (auto* const set = manager.find<DwmSetWindowAttribute>("DwmSetWindowAttribute")) {
        const BOOL dark = theme.dark;
        set(window, useImmersiveDarkMode, &dark, sizeof dark);
    }
}

void darkenScrollBars(HWND window, const Theme& theme) {
    using SetWindowTheme = HRESULT WINAPI(HWND, LPCWSTR, LPCWSTR);
    static bool wasDark = false;
    if (!theme.dark && !wasDark) {
        return;
    }
    wasDark = true;
    static const SystemLibrary themes("uxtheme.dll");
    if (auto* const set = themes.find<SetWindowTheme>("SetWindowTheme")) {
        set(window, theme.dark ? L"DarkMode_Explorer" : nullptr, nullptr);
    }
}

} // namespace tarvelon
