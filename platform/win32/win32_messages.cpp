#include "platform/win32/win32_messages.h"

#include "platform/win32/window_calls.h"
#include "platform/win32/window_host.h"

namespace tarvelon {

namespace {

std::int64_t counter() {
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return now.QuadPart;
}

bool anythingWaits() {
    return HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0;
}

} // namespace

void Win32MessageQueue::pump() {
    windows_.refreshIfDue();
    MSG message;
    while (windowCalls().peekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // Left for the outermost loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        windows_.handle(message);
    }
    noteIdle(QS_ALLINPUT);
}

void Win32MessageQueue::pumpInLoop() {
    if (!knownIdle(QS_ALLINPUT)) {
        pump();
    }
}

void Win32MessageQueue::wait() {
    windows_.refresh();
    // Unlike WaitMessage it does not sleep over input that `queueStatus` has already been told of.
    MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

std::uint32_t Win32MessageQueue::queueStatus(std::uint32_t flags) {
    if (knownIdle(flags)) {
        return 0;
    }
    const DWORD status = GetQueueStatus(flags);
    if (status == 0) {
        noteIdle(flags);
    }
    return status;
}

bool Win32MessageQueue::knownIdle(std::uint32_t flags) const {
    return (flags & ~idleFlags_) == 0 && counter() < idleUntil_;
}

/// A question goes through to another process on some systems, and costs as much as reading a small file.
void Win32MessageQueue::noteIdle(std::uint32_t flags) {
    constexpr std::int64_t asksInASecond = 300;
    LARGE_INTEGER second;
    QueryPerformanceFrequency(&second);
    idleFlags_ = flags;
    idleUntil_ = counter() + second.QuadPart / asksInASecond;
}

int Win32MessageQueue::run(const std::function<void()>& rest) {
    MSG message;
    while (windowCalls().getMessage(&message, nullptr, 0, 0) > 0) {
        windows_.handle(message);
        if (anythingWaits()) {
            windows_.refreshIfDue();
            continue;
        }
        windows_.refresh();
        rest();
        while (!anythingWaits() && windows_.makeReady()) {
        }
    }
    return static_cast<int>(message.wParam);
}

} // namespace tarvelon
