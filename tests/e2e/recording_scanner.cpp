// Stands in for an anti-virus scanner: adds the way it was started to a file beside itself and ends. The line
// is the moment of its start, its window style as a number, its command line as it came, and behind a "!"
// each full path in it that cannot be opened, with blanks between them, all in UTF-8. The moment comes first
// and always has the same length: runs that overlap may write in any order, and sorting the lines puts them
// right. The file has the program's name, with ".txt" behind it.

#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <span>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    FILETIME times[4] = {};
    GetProcessTimes(GetCurrentProcess(), &times[0], &times[1], &times[2], &times[3]);
    STARTUPINFOA told{};
    GetStartupInfoA(&told);
    std::wstring line(40, L' ');
    line.resize(
        static_cast<std::size_t>(std::swprintf(line.data(), 40, L"%08lX%08lX %d ", times[0].dwHighDateTime,
                                               times[0].dwLowDateTime, told.wShowWindow)));
    line += GetCommandLineW();
    constexpr DWORD anybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (const std::wstring_view path : std::span(arguments, static_cast<std::size_t>(count))) {
        HANDLE const file =
            CreateFileW(path.data(), GENERIC_READ, anybody, nullptr, OPEN_EXISTING, 0, nullptr);
        line += file == INVALID_HANDLE_VALUE && path.find(L":\\") == 1 ? L" !" + std::wstring(path) : L"";
        CloseHandle(file);
    }
    line += L'\n';
    char text[100'000];
    const int size = WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), text,
                                         sizeof text, nullptr, nullptr);

    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring record = std::wstring(program) + L".txt";
    HANDLE file = INVALID_HANDLE_VALUE;
    // Several scanners run at once; the file is one's own until it is closed.
    for (int tries = 0; tries < 4000 && file == INVALID_HANDLE_VALUE; ++tries) {
        Sleep(tries > 0 ? 5 : 0);
        file = CreateFileW(record.c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    }
    DWORD written = 0;
    return WriteFile(file, text, static_cast<DWORD>(size), &written, nullptr) ? 0 : 1;
}
