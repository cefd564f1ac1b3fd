#include "platform/win32/parts.h"

#include "platform/command_line.h"
#include "platform/win32/owned.h"
#include "platform/win32/shell_execute.h"
#include "platform/win32/wide.h"

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

constexpr DWORD elevationRequired = 740; ///< The headers for Windows XP do not know it yet.

/// Empty when it is not found.
std::string searchPath(const std::string& name, bool asExe) {
    if (hasWideCalls()) {
        const std::wstring wide = briefPath(name);
        return reachablePath(textFrom([&](wchar_t* buffer, DWORD size) {
            return SearchPathW(nullptr, wide.c_str(), asExe ? L".exe" : nullptr, size, buffer, nullptr);
        }));
    }
    char path[MAX_PATH];
    const DWORD length =
        SearchPathA(nullptr, name.c_str(), asExe ? ".exe" : nullptr, sizeof path, path, nullptr);
    return length < sizeof path ? std::string(path, length) : std::string();
}

/// The program's file, looked for as the system does when it gets nothing but a command line, though by the
/// whole name. Empty when it is not there.
std::string fileOf(const std::string& program) {
    const bool quoted = program.size() > 1 && program.front() == '"' && program.back() == '"';
    const std::string name = quoted ? program.substr(1, program.size() - 2) : program;
    const std::string file = searchPath(name, true);
    return file.empty() ? searchPath(name, false) : file;
}

template<class Startup>
Startup startupWith(WORD show) {
    Startup startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = show;
    return startup;
}

/// Starts the file with a command line. On failure the system's error tells why.
bool create(const std::string& file, std::string line, WORD show) {
    PROCESS_INFORMATION started{};
    if (hasWideCalls()) {
        auto startup = startupWith<STARTUPINFOW>(show);
        std::wstring wideLine = wideText(line);
        if (!CreateProcessW(briefPath(file).c_str(), wideLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                            nullptr, &startup, &started)) {
            return false;
        }
    } else {
        auto startup = startupWith<STARTUPINFOA>(show);
        if (!CreateProcessA(file.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &started)) {
            return false;
        }
    }
    const OwnedHandle process(started.hProcess);
    const OwnedHandle thread(started.hThread);
    return true;
}

/// With blanks in it the name stands in quotes, as the system puts it when it has to find the program by
/// itself; else the program would take what stands behind the first blank for its own arguments.
std::string asFirstArgument(const std::string& program) {
    const bool parts = program.front() != '"' && program.find(' ') != std::string::npos;
    return parts ? "\"" + program + "\"" : program;
}

class Win32Processes : public Processes {
public:
    Win32Processes() {
        // The mark of an instance that runs elevated or for another user is there, but may not be opened.
        const DWORD error = GetLastError();
        anotherInstance_ = error == ERROR_ALREADY_EXISTS || (!instanceMark_ && error == ERROR_ACCESS_DENIED);
    }

    std::string programFile() override {
        if (hasWideCalls()) {
            return reachablePath(textFrom(
                [](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); }));
        }
        char path[MAX_PATH];
        return {path, GetModuleFileNameA(nullptr, path, sizeof path)};
    }

    std::string commandLine() override {
        return std::string(behindProgramName(hasWideCalls() ? narrowText(GetCommandLineW())
                                                            : std::string(GetCommandLineA())));
    }

    std::array<int, 3> programVersion() override {
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

    bool start(const std::string& program, const std::string& arguments, WindowStyle style) override {
        // A bare name is looked for in the current folder too, and what is started looks there for its
        // libraries: it must not be a folder that the user has last opened or that a link has chosen.
        const std::wstring own = wideText(programFile());
        const std::string ownFolder = narrowText(own.substr(0, own.rfind(L'\\') + 1));
        hasWideCalls() ? SetCurrentDirectoryW(briefPath(ownFolder).c_str())
                       : SetCurrentDirectoryA(ownFolder.c_str());
        const std::string file = fileOf(program);
        if (file.empty() || program.size() + 1 + arguments.size() > longestCommandLine) {
            return false;
        }
        std::string line = asFirstArgument(program);
        line += arguments.empty() ? "" : " " + arguments;
        const WORD show = style == WindowStyle::MinimizedFocus ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
        // The shell asks the user for the rights that a program wants.
        return create(file, line, show) ||
               (GetLastError() == elevationRequired &&
                shellExecute(nullptr, "", file, arguments, "", show) > Shell::lastFailure);
    }

    bool anotherInstance() override { return anotherInstance_; }

protected:
    [[noreturn]] void endNow() override { ExitProcess(0); }

private:
    /// A mutex that nobody waits for, there while the process is. Null if refused.
    OwnedHandle instanceMark_{CreateMutexA(nullptr, FALSE, "TarvelonLow")};
    bool anotherInstance_ = false;
};

} // namespace

std::unique_ptr<Processes> makeProcesses() {
    return std::make_unique<Win32Processes>();
}

} // namespace tarvelon
