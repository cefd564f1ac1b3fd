#include "platform/win32/win32_messages.h"

#include "platform/win32/window_host.h"
#include "platform/win32/windows_api.h"

namespace tarvelon {

void Win32MessageQueue::pump() {
    windows_.refreshIfDue();
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // Left for the outermost loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        windows_.handle(message);
    }
}

void Win32MessageQueue::wait() {
    windows_.refresh();
    // Unlike WaitMessage it does not sleep over input that `queueStatus` has already been told of.
    MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

std::uint32_t Win32MessageQueue::queueStatus(std::uint32_t flags) {
    // The question goes through to another process on some systems, and costs as much as reading a small
    // file.
    constexpr LONGLONG asksInASecond = 500;
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    if (flags == idleFlags_ && now.QuadPart < idleUntil_) {
        return 0;
    }
    const DWORD status = GetQueueStatus(flags);
    LARGE_INTEGER second;
    QueryPerformanceFrequency(&second);
    idleFlags_ = flags;
    idleUntil_ = status == 0 ? now.QuadPart + second.QuadPart / asksInASecond : 0;
    return status;
}

int Win32MessageQueue::run() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        windows_.handle(message);
        const bool moreWaits = HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0;
        moreWaits ? windows_.refreshIfDue() : windows_.refresh();
    }
    return static_cast<int>(message.wParam);
}

} // namespace tarvelon
