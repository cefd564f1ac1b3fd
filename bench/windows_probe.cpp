// Measures on the Windows side:
//
//   windows_probe read LIST [window]   opens each file that LIST names, reads it by 64 KB and closes it; with
//                                      "window", has a small window on the screen first
//   windows_probe start PROGRAM        prints the milliseconds from the start of the program to its drawn
//   window windows_probe pages PROGRAM        prints the milliseconds from each click on its navigation to
//   the drawn page
//
// The program is known by its window only, as its user knows it.

#include <windows.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr DWORD patience = 30'000; // Milliseconds.

double milliseconds() {
    LARGE_INTEGER now;
    LARGE_INTEGER second;
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&second);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(second.QuadPart);
}

bool readOne(const std::string& path, std::vector<char>& buffer) {
    HANDLE const file =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD came = 0;
    bool done = false;
    do {
        done = ReadFile(file, buffer.data(), static_cast<DWORD>(buffer.size()), &came, nullptr) != 0;
    } while (done && came == buffer.size());
    CloseHandle(file);
    return done;
}

int readAll(const std::string& list, bool window) {
    if (window) {
        ShowWindow(CreateWindowA("STATIC", "Reading", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300, nullptr, nullptr,
                                 nullptr, nullptr),
                   SW_SHOW);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            DispatchMessageA(&message);
        }
    }
    std::vector<char> buffer(65536);
    std::ifstream paths(list);
    for (std::string path; std::getline(paths, path);) {
        if (!readOne(path, buffer)) {
            std::fprintf(stderr, "%s cannot be read\n", path.c_str());
            return 1;
        }
    }
    return 0;
}

BOOL CALLBACK addIfVisible(HWND window, LPARAM list) {
    if (IsWindowVisible(window) != 0) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

/// The visible windows in a form, the form itself in front.
std::vector<HWND> visibleIn(HWND form) {
    std::vector<HWND> found{form};
    EnumChildWindows(form, addIfVisible, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool isDrawn(const std::vector<HWND>& windows) {
    for (HWND window : windows) {
        if (GetUpdateRect(window, nullptr, FALSE) != 0) {
            return false;
        }
    }
    return true;
}

/// Asks until `holds` is true; gives the milliseconds since `begin`, or a negative number when it never was.
template<class Holds>
double timeUntil(double begin, Holds holds) {
    while (!holds()) {
        if (milliseconds() - begin > patience) {
            return -1;
        }
        Sleep(0);
    }
    return milliseconds() - begin;
}

class Program {
public:
    explicit Program(std::string path) {
        STARTUPINFOA start{};
        start.cb = sizeof start;
        begin_ = milliseconds();
        CreateProcessA(nullptr, path.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process_);
        opened_ = timeUntil(begin_, [this] {
            form_ = FindWindowA("TarvelonForm", "Welcome to Tarvelon");
            return form_ && IsWindowVisible(form_) != 0 && isDrawn(visibleIn(form_));
        });
    }
    Program(const Program&) = delete;
    ~Program() {
        TerminateProcess(process_.hProcess, 0);
        WaitForSingleObject(process_.hProcess, patience);
    }

    double opened() const { return opened_; }

    double switchTo(const char* entry) const {
        HWND target = nullptr;
        const std::vector<HWND> before = visibleIn(form_);
        for (HWND window : before) {
            char text[64] = {};
            SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
            target = std::string(text) == entry ? window : target;
        }
        const double begin = milliseconds();
        PostMessageA(target, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 20));
        PostMessageA(target, WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
        return timeUntil(begin, [&] {
            const std::vector<HWND> now = visibleIn(form_);
            return now != before && isDrawn(now);
        });
    }

private:
    PROCESS_INFORMATION process_{};
    HWND form_ = nullptr;
    double begin_ = 0;
    double opened_ = -1;
};

} // namespace

int main(int count, char** arguments) {
    const std::string work = count > 2 ? arguments[1] : "";
    if (work == "read") {
        return readAll(arguments[2], count > 3);
    }
    if (work != "start" && work != "pages") {
        std::fputs("usage: windows_probe read LIST [window] | start PROGRAM | pages PROGRAM\n", stderr);
        return 2;
    }
    const Program program(arguments[2]);
    if (work == "start") {
        std::printf("%.3f\n", program.opened());
        return 0;
    }
    Sleep(500); // The user has a look at the window first.
    for (const char* entry : {"RegWatch", "AppWatch", "Options", "Integrity Scan"}) {
        std::printf("%.3f ", program.switchTo(entry));
    }
    std::puts("");
}
