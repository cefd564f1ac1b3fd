// What has nothing to stand for it in the simulation.

#include "tests/contract/contract_fixture.h"

namespace tarvelon {

namespace {

TEST_F(Contract, FilesAreReachedWhateverTheirNamesHold) {
    const std::string own = read(platform.processes.programFile());
    for (const std::wstring& name : std::vector<std::wstring>{
             L"\u041f \u043f", L"\u03b1\u03b2", L"\u8868\u30bd", L"\u00e9t\u00e9", L"\U0001f600",
             std::wstring(81, L'\u6f22'), std::wstring(200, L'n'), L"NUL"}) {
        // A folder of this name, and in it a program: this very test, which lists itself when it is started.
        const std::string base = folder + std::to_string(name[0]) + "\\";
        const std::wstring wide = L"\\\\?\\" + wideText(base) + name;
        const std::wstring program = wide + L"\\" + name + L".exe";
        ASSERT_TRUE(files.createFolder(base) && CreateDirectoryW(wide.c_str(), nullptr) && put("x", own) &&
                    MoveFileW(wideText(folder + "x").c_str(), program.c_str()));
        const std::string place = base + list(base).back() + "\\";
        const std::string path = place + list(place).back();
        char found[1024] = "";
        files.getShortPathName(path, found, sizeof found);
        EXPECT_TRUE(files.length(path) == own.size() && read(found) == own) << path;
        EXPECT_TRUE(!exactNarrowText(name) || // Nobody can ask for it.
                    (files.searchTreeForFile(base, narrowText(name + L".exe"), found) && read(found) == own))
            << path;
        EXPECT_TRUE(files.move(path, place + "y") && files.move(place + "y", path) &&
                    files.open(path + "r", OpenMode::Create) && files.remove(path + "r"));
        const std::string arguments = "--gtest_list_tests --gtest_output=json:\"" + base + "made\"";
        EXPECT_TRUE(name == L"NUL" || (platform.processes.start(path, arguments, WindowStyle::NormalFocus) &&
                                       workstation->hasMade(base + "made", "")));
    }
    EXPECT_EQ(nameOf(L"\xd83d.dll", L""), "?.dll") << "Half of a character";
    EXPECT_EQ(nameOf(L"\xd83d.dll", L"_~1.DLL"), "_~1.DLL");
}

TEST_F(Contract, AMoveOutlastsAProgramThatHoldsTheOtherFileForAMoment) {
    ASSERT_TRUE(put("from", "new") && put("to", "old"));
    auto lock = workstation->lock(folder + "to");
    const auto letGo = [](void* held) WINAPI -> DWORD {
        Sleep(120);
        static_cast<std::shared_ptr<void>*>(held)->reset();
        return 0;
    };
    const HANDLE thread = CreateThread(nullptr, 0, letGo, &lock, 0, nullptr);
    EXPECT_TRUE(files.move(folder + "from", folder + "to"));
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    EXPECT_EQ(get("to"), "new");
}

TEST(Win32Processes, AnotherInstanceIsSeenEvenIfItMayNotBeOpened) {
    {
        const auto first = makeProcesses();
        EXPECT_FALSE(first->anotherInstance());
        EXPECT_TRUE(makeProcesses()->anotherInstance());
        EXPECT_FALSE(first->start("missing", "", WindowStyle::NormalFocus));
    }
    ACL nobody;
    SECURITY_DESCRIPTOR rights;
    ASSERT_TRUE(InitializeAcl(&nobody, sizeof nobody, ACL_REVISION) &&
                InitializeSecurityDescriptor(&rights, SECURITY_DESCRIPTOR_REVISION) &&
                SetSecurityDescriptorDacl(&rights, TRUE, &nobody, FALSE));
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &rights, FALSE};
    const HANDLE mark = CreateMutexA(&attributes, FALSE, "TarvelonLow");
    EXPECT_TRUE(makeProcesses()->anotherInstance());
    CloseHandle(mark);
}

TEST(Win32Power, TheRightToShutDownIsTaken) {
    PRIVILEGE_SET wanted{1, 0, {}};
    HANDLE token = nullptr;
    ASSERT_TRUE(LookupPrivilegeValueA(nullptr, SE_SHUTDOWN_NAME, &wanted.Privilege[0].Luid) &&
                OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    for (const bool taken : {false, true}) {
        makePower()->adjustPrivilege(taken ? SE_SHUTDOWN_NAME : "NoSuchPrivilege", SE_PRIVILEGE_ENABLED);
        BOOL held = FALSE;
        EXPECT_TRUE(PrivilegeCheck(token, &wanted, &held) && held == taken);
    }
    CloseHandle(token);
}

} // namespace

} // namespace tarvelon
