#include "platform/win32/parts.h"

#include "platform/command_line.h"
#include "platform/win32/owned.h"

#include <shellapi.h>

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
constexpr INT_PTR lastShellFailure = 32;

/// The program's file, looked for as the system does when it gets nothing but a command line, though by the
/// whole name. Empty when it is not there.
std::string fileOf(const std::string& program) {
    const bool quoted = program.size() > 1 && program.front() == '"' && program.back() == '"';
    const std::string name = quoted ? program.substr(1, program.size() - 2) : program;
    for (const char* extension : {".exe", static_cast<const char*>(nullptr)}) {
        char path[MAX_PATH];
        const DWORD length = SearchPathA(nullptr, name.c_str(), extension, sizeof path, path, nullptr);
        if (length > 0 && length < sizeof path) {
            return {path, length};
        }
    }
    return {};
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

    std::string commandLine() override { return std::string(behindProgramName(GetCommandLineA())); }

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
        const std::string own = programFile();
        SetCurrentDirectoryA(own.substr(0, own.rfind('\\') + 1).c_str());
        const std::string file = fileOf(program);
        if (file.empty() || program.size() + 1 + arguments.size() > longestCommandLine) {
            return false;
        }
        std::string line = asFirstArgument(program);
        line += arguments.empty() ? "" : " " + arguments;
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESHOWWINDOW;
        startup.wShowWindow = style == WindowStyle::MinimizedFocus ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
        PROCESS_INFORMATION started{};
        if (!CreateProcessA(file.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &started)) {
            // The shell asks the user for the rights that the program wants.
            return GetLastError() == elevationRequired &&
                   reinterpret_cast<INT_PTR>(ShellExecuteA(nullptr, nullptr, file.c_str(), arguments.c_str(),
                                                           nullptr, startup.wShowWindow)) > lastShellFailure;
        }
        const OwnedHandle process(started.hProcess);
        const OwnedHandle thread(started.hThread);
        return true;
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
