#include "system_facts.h"

#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <windows.h>

#include <shlobj.h>

namespace check {

namespace {

template<class Function>
Function* find(const char* library, const char* name) {
    HMODULE const module = LoadLibraryA((e2e::systemDirectory() + library).c_str());
    return module == nullptr
               ? nullptr
               : reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

RTL_OSVERSIONINFOW version() {
    RTL_OSVERSIONINFOW told{};
    told.dwOSVersionInfoSize = sizeof told;
    // What GetVersionEx tells hangs on the manifest of who asks.
    if (const auto ask = find<LONG WINAPI(RTL_OSVERSIONINFOW*)>("ntdll.dll", "RtlGetVersion")) {
        ask(&told);
    }
    return told;
}

/// A text or a number; empty when there is none.
std::string registryText(HKEY root, const wchar_t* path, const wchar_t* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path, 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) {
        return "";
    }
    wchar_t text[256] = {};
    DWORD size = sizeof text - sizeof text[0];
    DWORD type = 0;
    const bool found =
        RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(text), &size) == ERROR_SUCCESS;
    RegCloseKey(key);
    DWORD number = 0;
    CopyMemory(&number, text, sizeof number);
    return !found ? "" : type == REG_DWORD ? std::to_string(number) : e2e::narrow(text);
}

std::string windowsName() {
    constexpr const wchar_t* path = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    const RTL_OSVERSIONINFOW told = version();
    std::string name = registryText(HKEY_LOCAL_MACHINE, path, L"ProductName");
    for (const wchar_t* more : {L"DisplayVersion", L"CSDVersion"}) {
        const std::string text = registryText(HKEY_LOCAL_MACHINE, path, more);
        name += text.empty() ? "" : " " + text;
    }
    return name + ", version " + std::to_string(told.dwMajorVersion) + "." +
           std::to_string(told.dwMinorVersion) + "." + std::to_string(told.dwBuildNumber) + "." +
           registryText(HKEY_LOCAL_MACHINE, path, L"UBR");
}

std::string wineVersion() {
    const auto ask = find<const char * CDECL()>("ntdll.dll", "wine_get_version");
    return ask == nullptr ? "no" : std::string("yes, ") + ask();
}

std::string widths() {
    const auto ask = find<BOOL WINAPI(HANDLE, BOOL*)>("kernel32.dll", "IsWow64Process");
    BOOL below64 = FALSE;
    if (ask != nullptr) {
        ask(GetCurrentProcess(), &below64);
    }
    return std::to_string(8 * sizeof(void*)) + "-bit programs on a " +
           (below64 != FALSE || sizeof(void*) == 8 ? "64" : "32") + "-bit system";
}

std::string localeText(LCID locale, LCTYPE what) {
    wchar_t text[128] = {};
    GetLocaleInfoW(locale, what, text, 128);
    return e2e::narrow(text);
}

std::string screenText() {
    HDC const screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    const int depth = GetDeviceCaps(screen, BITSPIXEL);
    ReleaseDC(nullptr, screen);
    return std::to_string(GetSystemMetrics(SM_CXSCREEN)) + " x " +
           std::to_string(GetSystemMetrics(SM_CYSCREEN)) + " of " + std::to_string(depth) + " bits, " +
           std::to_string(dots * 100 / 96) + " percent, " + std::to_string(GetSystemMetrics(SM_CMONITORS)) +
           " screen(s)";
}

std::string themeText() {
    const auto isActive = find<BOOL WINAPI()>("uxtheme.dll", "IsThemeActive");
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
    const bool light =
        registryText(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"AppsUseLightTheme") != "0";
    return std::string(isActive != nullptr && isActive() != FALSE ? "visual styles" : "classic") +
           ((contrast.dwFlags & HCF_HIGHCONTRASTON) != 0 ? ", high contrast" : "") +
           (light ? ", light programs" : ", dark programs");
}

std::string rightsText() {
    HANDLE token = nullptr;
    OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token);
    constexpr auto elevation = static_cast<TOKEN_INFORMATION_CLASS>(20);
    DWORD elevated = 0;
    DWORD size = 0;
    const bool told = GetTokenInformation(token, elevation, &elevated, sizeof elevated, &size) != 0;
    CloseHandle(token);
    return (told ? elevated != 0 : IsUserAnAdmin() != FALSE) ? "elevated" : "not elevated";
}

std::string driveText(const std::string& folder) {
    wchar_t kind[64] = {};
    GetVolumeInformationW(e2e::wide(folder.substr(0, 3)).c_str(), nullptr, 0, nullptr, nullptr, nullptr, kind,
                          64);
    return e2e::narrow(kind) + (keepsShortNames(folder) ? ", with short names" : ", without short names");
}

} // namespace

unsigned ansiPage() {
    return static_cast<unsigned>(std::stoul(localeText(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE)));
}

unsigned long buildNumber() {
    return version().dwBuildNumber;
}

bool keepsShortNames(const std::string& folder) {
    const e2e::PlantedFile file(folder + "a name that is long", "");
    wchar_t path[MAX_PATH] = {};
    GetShortPathNameW(e2e::wide(file.path()).c_str(), path, MAX_PATH);
    return !e2e::narrow(path).ends_with("a name that is long");
}

std::vector<std::pair<std::string, std::string>> systemFacts(const std::string& folder) {
    return {{"Windows", windowsName()},
            {"Wine", wineVersion()},
            {"Widths", widths()},
            {"Code pages", "ANSI " + std::to_string(ansiPage()) + ", OEM " + std::to_string(GetOEMCP()) +
                               ", granted to a program that asks for UTF-8: " + std::to_string(GetACP())},
            {"Language", "of the system " + localeText(LOCALE_SYSTEM_DEFAULT, LOCALE_SENGLANGUAGE) +
                             ", of the user " + localeText(LOCALE_USER_DEFAULT, LOCALE_SENGLANGUAGE) +
                             ", of its windows " +
                             localeText(GetUserDefaultUILanguage(), LOCALE_SENGLANGUAGE)},
            {"Screen", screenText()},
            {"Theme", themeText()},
            {"Rights", rightsText()},
            {"Drive of this folder", driveText(folder)}};
}

} // namespace check
