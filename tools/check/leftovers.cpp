#include "leftovers.h"

#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <array>
#include <utility>

#include <psapi.h>

namespace check {

namespace {

void endProgramsOf(const std::string& folder) {
    std::array<DWORD, 4096> all{};
    DWORD size = 0;
    EnumProcesses(all.data(), sizeof all, &size);
    for (DWORD i = 0; i < size / sizeof(DWORD); ++i) {
        HANDLE const process = OpenProcess(
            PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | PROCESS_TERMINATE | SYNCHRONIZE, FALSE, all.at(i));
        wchar_t file[MAX_PATH] = {};
        if (process != nullptr && GetModuleFileNameExW(process, nullptr, file, MAX_PATH) > 0 &&
            lstrcmpiW(e2e::wide(e2e::narrow(file).substr(0, folder.size())).c_str(),
                      e2e::wide(folder).c_str()) == 0) {
            TerminateProcess(process, 1);
            WaitForSingleObject(process, 5'000);
        }
        CloseHandle(process);
    }
}

/// With all below it.
void deleteKey(HKEY parent, const std::wstring& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) {
        return;
    }
    for (wchar_t name[256] = {}; RegEnumKeyW(key, 0, name, 256) == ERROR_SUCCESS;) {
        deleteKey(key, name);
    }
    RegCloseKey(key);
    RegDeleteKeyW(parent, path.c_str());
}

void deleteRegistryTraces() {
    deleteKey(HKEY_CURRENT_USER, L"Software\\TarvelonContract");
    HKEY run = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Run", 0, KEY_SET_VALUE,
                  &run);
    for (const wchar_t* name : {L"Tarvelon check", L"Tarvelon check 2"}) {
        RegDeleteValueW(run, name);
    }
    RegCloseKey(run);
}

} // namespace

bool takeBack(const std::string& folder) {
    endProgramsOf(folder);
    deleteRegistryTraces();
    return e2e::comesTrue([&] { return e2e::removeFolder(folder); }, e2e::Milliseconds(10'000));
}

bool programRuns() {
    HANDLE const mark = OpenMutexW(SYNCHRONIZE, FALSE, L"TarvelonLow");
    const bool runs = mark != nullptr || GetLastError() == ERROR_ACCESS_DENIED;
    CloseHandle(mark);
    return runs;
}

} // namespace check
