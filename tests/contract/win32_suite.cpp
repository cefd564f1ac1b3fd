// What has nothing to stand for it in the simulation.

#include "tests/contract/contract_fixture.h"

namespace tarvelon {

namespace {

TEST_F(Contract, AMoveOutlastsAProgramThatHoldsTheOtherFileForAMoment) {
    ASSERT_TRUE(put("from", "new") && put("to", "old"));
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
