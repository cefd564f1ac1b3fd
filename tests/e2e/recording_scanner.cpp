// Stands in for an anti-virus scanner: adds the way it was started to a file beside itself and ends. The line
// is the moment of its start, its window style as a number, and its command line as it came, with blanks
// between them. The moment comes first and always has the same length: runs that overlap may write in any
// order, and sorting the lines puts them right. The file has the program's name, with ".txt" behind it.

#include <windows.h>

#include <cstdio>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    FILETIME start{};
    FILETIME ignored{};
    GetProcessTimes(GetCurrentProcess(), &start, &ignored, &ignored, &ignored);
    STARTUPINFOA told{};
    GetStartupInfoA(&told);
    char head[32] = {};
    std::snprintf(head, sizeof head, "%08lX%08lX %d ", start.dwHighDateTime, start.dwLowDateTime,
                  told.wShowWindow);
    const std::string line = std::string(head) + GetCommandLineA() + "\n";

    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string record = std::string(program) + ".txt";
    HANDLE file = INVALID_HANDLE_VALUE;
    const auto isOpen = [&] {
        file = CreateFileA(record.c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
        return file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION;
    };
    while (!isOpen()) { // Several scanners run at once; the file is one's own until it is closed.
        Sleep(5);
    }
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    return written == line.size() ? 0 : 1;
}
