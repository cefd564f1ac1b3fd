#include "tests/contract/contract_fixture.h"

#include "platform/win32/component.h"
#include "platform/win32/win32_platform.h"

#include <windows.h>

#include <shlobj.h>
#include <shlwapi.h>
#include <wincrypt.h>

namespace tarvelon {

namespace {

void removeTree(const std::string& folder) {
    WIN32_FIND_DATAA found;
    const HANDLE listing = FindFirstFileA((folder + "*").c_str(), &found);
    if (listing == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const std::string name = found.cFileName;
        const std::string path = folder + name;
        if (name == "." || name == "..") {
            continue;
        }
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
            removeTree(path + "\\");
        } else {
            DeleteFileA(path.c_str());
        }
    } while (FindNextFileA(listing, &found));
    FindClose(listing);
    RemoveDirectoryA(folder.c_str());
}

HKEY createKey(const std::string& path) {
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyA(HKEY_CURRENT_USER, path.c_str(), &key), ERROR_SUCCESS) << path;
    return key;
}

/// The show command in a link file's header. Wine's object reads the normal window out of every file,
/// whatever stands there.
int showCommandIn(const std::string& path) {
    constexpr LONG place = 60;
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
    SetFilePointer(file, place, nullptr, FILE_BEGIN);
    std::int32_t value = -1;
    DWORD came = 0;
    EXPECT_TRUE(ReadFile(file, &value, sizeof value, &came, nullptr));
    CloseHandle(file);
    return value;
}

constexpr const char* scratchKey = R"(Software\TarvelonContract)";

class Win32ContractWorkstation : public ContractWorkstation {
public:
    Win32ContractWorkstation() {
        char temporary[MAX_PATH];
        GetTempPathA(sizeof temporary, temporary);
        folder_ =
            std::string(temporary) + "tarvelon-contract-" + std::to_string(GetCurrentProcessId()) + "\\";
    }
    ~Win32ContractWorkstation() override {
        for (const HWND window : windows_) {
            DestroyWindow(window);
        }
        removeTree(folder_);
        SHDeleteKeyA(HKEY_CURRENT_USER, scratchKey);
    }

    Platform platform() override { return win32_.platform(); }
    std::string emptyFolder() override {
        removeTree(folder_);
        CreateDirectoryA(folder_.c_str(), nullptr);
        return folder_;
    }
    void hide(const std::string& path) override { SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN); }
    bool makeReadOnly(const std::string& path) override {
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
        const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        const bool held = file == INVALID_HANDLE_VALUE;
        CloseHandle(file);
        return held;
    }
    std::shared_ptr<void> lock(const std::string& path) override {
        const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
        return std::shared_ptr<void>(file, CloseHandle);
    }
    std::string emptyKey() override {
        SHDeleteKeyA(HKEY_CURRENT_USER, scratchKey);
        makeKey(scratchKey);
        return scratchKey;
    }
    void makeKey(const std::string& path) override { RegCloseKey(createKey(path)); }
    void setValue(const std::string& path, const std::string& name, std::uint32_t type,
                  const std::string& bytes) override {
        const HKEY key = createKey(path);
        const auto* data = reinterpret_cast<const BYTE*>(bytes.data());
        EXPECT_EQ(RegSetValueExA(key, name.c_str(), 0, type, data, static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS)
            << name;
        RegCloseKey(key);
    }
    void removeDefaultKeyContainer() override {
        HCRYPTPROV none = 0;
        CryptAcquireContextA(&none, "", MS_ENHANCED_PROV_A, PROV_RSA_FULL, CRYPT_DELETEKEYSET);
    }
    void attach(Screen& screen) override { win32_.view().attach(screen); }
    bool hasMade(const std::string& path, const std::string&) override {
        for (int tries = 0; tries < 100; ++tries) {
            if (GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES) {
                return true;
            }
            Sleep(100);
        }
        return false;
    }
    std::optional<LinkFile> readLink(const std::string& path) override {
        const auto link = makeComponent<IShellLinkA>(CLSID_ShellLink);
        const auto file = queryComponent<IPersistFile>(*link);
        if (FAILED(file->Load(wideText(path).c_str(), STGM_READ))) {
            return std::nullopt;
        }
        LinkFile read;
        char text[1024] = "";
        EXPECT_HRESULT_SUCCEEDED(link->GetPath(text, MAX_PATH, nullptr, 0));
        read.target = text;
        EXPECT_HRESULT_SUCCEEDED(link->GetWorkingDirectory(text, MAX_PATH));
        read.workingDirectory = text;
        EXPECT_HRESULT_SUCCEEDED(link->GetArguments(text, sizeof text));
        read.arguments = text;
        EXPECT_HRESULT_SUCCEEDED(link->GetDescription(text, sizeof text));
        read.description = text;
        EXPECT_HRESULT_SUCCEEDED(link->GetIconLocation(text, MAX_PATH, &read.iconIndex));
        read.iconFile = text;
        read.showCmd = showCommandIn(path);
        return read;
    }
    Desktop::Window openWindow(const std::string& title, const std::string& className,
                               bool visible) override {
        WNDCLASSA description{};
        description.lpfnWndProc = DefWindowProcA;
        description.lpszClassName = className.c_str();
        RegisterClassA(&description); // Fails for one that is there, which serves as well.
        // A kind of window that no window manager has to be waited for.
        const HWND window = CreateWindowExA(WS_EX_TOOLWINDOW, className.c_str(), title.c_str(), WS_POPUP, 0,
                                            0, 200, 100, nullptr, nullptr, nullptr, nullptr);
        EXPECT_NE(window, nullptr) << title;
        ShowWindow(window, visible ? SW_SHOWNOACTIVATE : SW_HIDE);
        windows_.push_back(window);
        return reinterpret_cast<Desktop::Window>(window);
    }
    std::uint32_t windowProcess() override { return GetCurrentProcessId(); }
    Processes& startedAgain() override {
        secondInstance_ = std::make_unique<Win32Processes>();
        return *secondInstance_;
    }
    bool holdsPrivilege(const std::string& name) override {
        PRIVILEGE_SET wanted{};
        wanted.PrivilegeCount = 1;
        EXPECT_TRUE(LookupPrivilegeValueA(nullptr, name.c_str(), &wanted.Privilege[0].Luid)) << name;
        HANDLE token = nullptr;
        EXPECT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
        BOOL held = FALSE;
        EXPECT_TRUE(PrivilegeCheck(token, &wanted, &held));
        CloseHandle(token);
        return held;
    }

private:
    Win32Platform win32_;
    std::string folder_;
    std::vector<HWND> windows_;
    std::unique_ptr<Win32Processes> secondInstance_;
};

TEST(Win32Processes, AnInstanceThatMayNotBeOpenedCounts) {
    ACL nobody;
    SECURITY_DESCRIPTOR rights;
    ASSERT_TRUE(InitializeAcl(&nobody, sizeof nobody, ACL_REVISION) &&
                InitializeSecurityDescriptor(&rights, SECURITY_DESCRIPTOR_REVISION) &&
                SetSecurityDescriptorDacl(&rights, TRUE, &nobody, FALSE));
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &rights, FALSE};
    const HANDLE mark = CreateMutexA(&attributes, FALSE, "TarvelonLow");
    EXPECT_TRUE(Win32Processes().anotherInstance());
    CloseHandle(mark);
}

TEST_F(Contract, AMoveOutlastsAProgramThatHoldsTheOtherFileForAMoment) {
    ASSERT_TRUE(put(folder + "from", "new"));
    ASSERT_TRUE(put(folder + "to", "old"));
    auto lock = workstation->lock(folder + "to");
    LPTHREAD_START_ROUTINE letGo = [](void* held) WINAPI -> DWORD {
        Sleep(120);
        static_cast<std::shared_ptr<void>*>(held)->reset();
        return 0;
    };
    const HANDLE thread = CreateThread(nullptr, 0, letGo, &lock, 0, nullptr);
    EXPECT_TRUE(files.move(folder + "from", folder + "to"));
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    EXPECT_EQ(get(folder + "to"), "new");
}

} // namespace

std::unique_ptr<ContractWorkstation> makeContractWorkstation() {
    return std::make_unique<Win32ContractWorkstation>();
}

} // namespace tarvelon
