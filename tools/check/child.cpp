#include "child.h"

#include "tools/driver/seen_windows.h"

namespace check {

namespace {

class Handle {
public:
    explicit Handle(HANDLE handle = nullptr)
        : handle_(handle) {}
    Handle(const Handle&) = delete;
    ~Handle() { close(); }

    HANDLE get() const { return handle_; }
    HANDLE* place() { return &handle_; }
    void close() {
        CloseHandle(handle_);
        handle_ = nullptr;
    }

private:
    HANDLE handle_;
};

/// Ends with this program, and cannot take the system down.
void fence(HANDLE job) {
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    JOBOBJECT_BASIC_UI_RESTRICTIONS refused{JOB_OBJECT_UILIMIT_EXITWINDOWS};
    SetInformationJobObject(job, JobObjectBasicUIRestrictions, &refused, sizeof refused);
}

/// What has come by now, in whole lines. False when the pipe is closed.
bool readLines(HANDLE pipe, std::string& rest, const std::function<void(const std::string&)>& onLine) {
    DWORD ready = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &ready, nullptr) == 0) {
        return false;
    }
    std::string piece(ready, ' ');
    if (ready > 0 && ReadFile(pipe, piece.data(), ready, &ready, nullptr) == 0) {
        return false;
    }
    rest.append(piece, 0, ready);
    for (std::size_t end = 0; (end = rest.find('\n')) != std::string::npos; rest.erase(0, end + 1)) {
        onLine(rest.substr(0, end > 0 && rest[end - 1] == '\r' ? end - 1 : end));
    }
    return true;
}

} // namespace

Outcome runChild(const std::string& program, const std::string& arguments, e2e::Milliseconds silence,
                 const std::function<void(const std::string& line)>& onLine) {
    const Handle job(CreateJobObjectW(nullptr, nullptr));
    fence(job.get());
    Handle output;
    Handle theirs;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    CreatePipe(output.place(), theirs.place(), &inherited, 0);
    SetHandleInformation(output.get(), HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = theirs.get();
    PROCESS_INFORMATION process{};
    std::wstring commandLine = e2e::wide("\"" + program + "\" " + arguments);
    if (CreateProcessW(e2e::wide(program).c_str(), commandLine.data(), nullptr, nullptr, TRUE,
                       CREATE_SUSPENDED, nullptr, nullptr, &start, &process) == 0) {
        return {Ending::NotStarted, GetLastError()};
    }
    // Where this program is in such a group itself, older systems refuse another one, and Ctrl+C has to do.
    AssignProcessToJobObject(job.get(), process.hProcess);
    ResumeThread(process.hThread);
    theirs.close();
    const Handle thread(process.hThread);
    const Handle running(process.hProcess);

    Outcome outcome{Ending::Ended, 0};
    std::string rest;
    DWORD heard = GetTickCount();
    const auto onText = [&](const std::string& line) {
        heard = GetTickCount();
        onLine(line);
    };
    while (WaitForSingleObject(running.get(), 20) != WAIT_OBJECT_0) {
        readLines(output.get(), rest, onText);
        if (GetTickCount() - heard > static_cast<DWORD>(silence.count())) {
            outcome.ending = Ending::Hung;
            TerminateJobObject(job.get(), 1);
            TerminateProcess(running.get(), 1);
        }
    }
    readLines(output.get(), rest, onText);
    GetExitCodeProcess(running.get(), &outcome.code);
    return outcome;
}

} // namespace check
