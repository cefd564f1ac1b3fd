#include "platform/win32/win32_processes.h"

#include "platform/command_line.h"
#include "platform/win32/windows_api.h"

#include <cstddef>
#include <cstring>

namespace tarvelon {

namespace {

/// How a version record begins in a program's resources. The system's headers leave this to the reader.
struct VersionRecord {
    WORD length;
    WORD valueLength;
    WORD type;
    WCHAR key[16]; ///< "VS_VERSION_INFO" and its zero.
    WORD padding;
    VS_FIXEDFILEINFO fixed;
};
static_assert(offsetof(VersionRecord, fixed) == 40);

} // namespace

Win32Processes::Win32Processes()
    : instanceMark_(CreateMutexA(nullptr, FALSE, "TarvelonLow")) {
    // The mark of an instance that runs elevated or for another user is there, but may not be opened.
    const DWORD error = GetLastError();
    anotherInstance_ = error == ERROR_ALREADY_EXISTS || (!instanceMark_ && error == ERROR_ACCESS_DENIED);
}

Win32Processes::~Win32Processes() {
    if (instanceMark_) {
        CloseHandle(instanceMark_);
    }
}

std::string Win32Processes::programFile() {
    std::string path(MAX_PATH, '\0');
    for (;;) {
        const DWORD size = static_cast<DWORD>(path.size());
        const DWORD length = GetModuleFileNameA(nullptr, path.data(), size);
        if (length < size) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::string Win32Processes::commandLine() {
    return std::string(behindProgramName(GetCommandLineA()));
}

std::array<int, 3> Win32Processes::programVersion() {
    const HRSRC found = FindResourceA(nullptr, MAKEINTRESOURCEA(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL loaded = found ? LoadResource(nullptr, found) : nullptr;
    const void* record = loaded ? LockResource(loaded) : nullptr;
    if (!record || SizeofResource(nullptr, found) < sizeof(VersionRecord)) {
        return {};
    }
    VersionRecord version;
    std::memcpy(&version, record, sizeof version);
    if (version.fixed.dwSignature != VS_FFI_SIGNATURE) {
        return {};
    }
    return {HIWORD(version.fixed.dwFileVersionMS), LOWORD(version.fixed.dwFileVersionMS),
            HIWORD(version.fixed.dwFileVersionLS)};
}

bool Win32Processes::start(const std::string& commandLine, WindowStyle style) {
    // A bare name is looked for in the current folder too, and what is started looks there for its libraries:
    // it must not be a folder that the user has last opened or that a link has chosen.
    const std::string program = programFile();
    SetCurrentDirectoryA(program.substr(0, program.rfind('\\') + 1).c_str());
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = style == WindowStyle::MinimizedFocus ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
    PROCESS_INFORMATION started;
    std::string writable = commandLine;
    if (!CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started)) {
        return false;
    }
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

void Win32Processes::endNow() {
    ExitProcess(0);
}

} // namespace tarvelon
