// Stands in for an anti-virus scanner: adds the way it was started to a file beside itself and ends. The line
// is the moment of its start, its window style as a number, and its command line as it came, with blanks
// between them. The moment comes first and always has the same length: runs that overlap may write in any
// order, and sorting the lines puts them right. The file has the program's name, with ".txt" behind it.

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

/// 16 hexadecimal digits.
std::string momentOfStart() {
    FILETIME start{};
    FILETIME ignored{};
    GetProcessTimes(GetCurrentProcess(), &start, &ignored, &ignored, &ignored);
    char text[17] = {};
    std::snprintf(text, sizeof text, "%08lX%08lX", start.dwHighDateTime, start.dwLowDateTime);
    return text;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    STARTUPINFOA start{};
    GetStartupInfoA(&start);
    const std::string line =
        momentOfStart() + " " + std::to_string(start.wShowWindow) + " " + GetCommandLineA() + "\r\n";

    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string record = std::string(program) + ".txt";
    // Several scanners run at once; the file is one's own until it is closed.
    HANDLE file = INVALID_HANDLE_VALUE;
    while (file == INVALID_HANDLE_VALUE) {
        file = CreateFileA(record.c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
        if (file == INVALID_HANDLE_VALUE && GetLastError() != ERROR_SHARING_VIOLATION) {
            return 1;
        }
        Sleep(file == INVALID_HANDLE_VALUE ? 5 : 0);
    }
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(file);
    return written == line.size() ? 0 : 1;
}
