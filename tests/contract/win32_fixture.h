#pragma once

#include "platform/win32/component.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_platform.h"
#include "view/view.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <shlobj.h>
#include <shlwapi.h>
#include <wincrypt.h>

namespace tarvelon {

/// Windows to hold against the contract, and what a test does to it from outside the program.
class ContractWorkstation {
public:
    ContractWorkstation() {
        static int made = 0; // A program that was started may still hold the folder of the test before.
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        GetShortPathNameW(temporary, temporary, MAX_PATH); // Which every code page holds.
        folder = narrowText(temporary) + "tarvelon-contract-" + std::to_string(GetCurrentProcessId()) + "-" +
                 std::to_string(++made) + "\\";
        empty();
        CreateDirectoryW(wideText(folder).c_str(), nullptr);
        makeKey(key);
    }
    ~ContractWorkstation() { empty(); }

    Platform platform() { return win32_.platform(); }
    /// Keeps the file open so that nobody else can, until the result goes.
    std::shared_ptr<void> lock(const std::string& path) {
        return {CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr), CloseHandle};
    }
    void makeKey(const std::string& path) {
        HKEY made = nullptr;
        EXPECT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, path.c_str(), &made), ERROR_SUCCESS) << path;
        RegCloseKey(made);
    }
    void setValue(const std::string& path, const std::string& name, std::uint32_t type,
                  const std::string& bytes) {
        const auto size = static_cast<DWORD>(bytes.size());
        EXPECT_EQ(SHSetValueA(HKEY_CURRENT_USER, path.c_str(), name.c_str(), type, bytes.data(), size), 0u);
    }
    /// Removes the key container of the empty name.
    void removeDefaultKeyContainer() {
        HCRYPTPROV none = 0;
        CryptAcquireContextA(&none, "", MS_ENHANCED_PROV_A, PROV_RSA_FULL, CRYPT_DELETEKEYSET);
    }
    /// Its timers run from its loading on. The screen outlives the workstation.
    void attach(Screen& screen) { view_.attach(screen); }
    /// Whether a command line that makes this file has been run, at the latest within some seconds.
    bool hasMade(const std::string& path, const std::string&) {
        const auto isThere = [&] {
            return GetFileAttributesW(widePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
        };
        for (int tries = 0; tries < 100 && !isThere(); ++tries) {
            Sleep(100);
        }
        return isThere();
    }
    /// Target, folder, arguments, description, icon and its number, and the way to show the window, as the
    /// system's own object reads them, with bars between them. Empty when there is no link file.
    std::string readLink(const std::string& path) {
        const auto link = makeComponent<IShellLinkW>(CLSID_ShellLink);
        const auto file = queryComponent<IPersistFile>(*link);
        if (FAILED(file->Load(wideText(path).c_str(), STGM_READ))) {
            return {};
        }
        wchar_t texts[5][MAX_PATH] = {};
        auto& [target, workingDirectory, arguments, description, icon] = texts;
        int iconIndex = -1;
        EXPECT_HRESULT_SUCCEEDED(link->GetPath(target, MAX_PATH, nullptr, 0));
        EXPECT_HRESULT_SUCCEEDED(link->GetWorkingDirectory(workingDirectory, MAX_PATH));
        EXPECT_HRESULT_SUCCEEDED(link->GetArguments(arguments, MAX_PATH));
        EXPECT_HRESULT_SUCCEEDED(link->GetDescription(description, MAX_PATH));
        EXPECT_HRESULT_SUCCEEDED(link->GetIconLocation(icon, MAX_PATH, &iconIndex));
        // Wine's object reads the normal window out of every file, whatever stands in its header.
        std::int32_t show = -1;
        EXPECT_EQ(Win32Files().open(path, OpenMode::Read)->readAt(60, &show, sizeof show), sizeof show);
        return narrowText(std::wstring(target) + L"|" + workingDirectory + L"|" + arguments + L"|" +
                          description + L"|" + icon + L"|" + std::to_wstring(iconIndex) + L"|" +
                          std::to_wstring(show));
    }
    /// Opens a window that closes when it is asked to. A class of the system's own serves.
    static Desktop::Window openWindow(const std::string& title, const std::string& className, bool visible) {
        // A kind of window that no window manager has to be waited for.
        return reinterpret_cast<Desktop::Window>(CreateWindowExA(
            WS_EX_TOOLWINDOW, className.c_str(), title.c_str(), WS_POPUP | (visible ? WS_VISIBLE : 0), 0, 0,
            200, 100, nullptr, nullptr, nullptr, nullptr));
    }
    /// The process that these windows belong to.
    const std::uint32_t windowProcess = GetCurrentProcessId();

    /// An empty one, with its trailing backslash.
    std::string folder;
    /// A registry key without values and sub-keys: the path below `Registry::currentUser`.
    const std::string key = R"(Software\TarvelonContract)";

private:
    void empty() {
        removeTree(widePath(folder));
        SHDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
    }

    /// The standard library's gives up in the middle with some compilers.
    static void removeTree(const std::wstring& path) {
        WIN32_FIND_DATAW found;
        const HANDLE search = FindFirstFileW((path + L"*").c_str(), &found);
        for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found)) {
            const std::wstring name = found.cFileName;
            if (name != L"." && name != L".." && !DeleteFileW((path + name).c_str())) {
                removeTree(path + name + L"\\");
            }
        }
        FindClose(search);
        RemoveDirectoryW(path.substr(0, path.size() - 1).c_str());
    }

    Win32View view_;
    Win32Platform win32_{view_};
};

} // namespace tarvelon
