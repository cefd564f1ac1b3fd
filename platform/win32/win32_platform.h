#pragma once

#include "platform/platform.h"
#include "platform/win32/parts.h"
#include "platform/win32/win32_dialogs.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_messages.h"

namespace tarvelon {

class WindowHost;

/// The real Windows: everything behind `Platform`. Made once, on the one thread, before any screen is loaded.
class Win32Platform {
public:
    explicit Win32Platform(WindowHost& windows);
    Win32Platform(const Win32Platform&) = delete;
    ~Win32Platform();

    Platform platform();

    /// Handles messages until the process ends or the thread is told to quit; gives the exit code.
    int runMessageLoop() {
        return messages_.run([this] { files_.forgetListing(); });
    }

private:
    std::unique_ptr<CodePage> codePage_ = makeCodePage();
    std::unique_ptr<CodePage> systemPage_ = makeSystemPage();
    Win32Files files_;
    std::unique_ptr<SystemFolders> folders_ = makeSystemFolders();
    std::unique_ptr<CryptoService> crypto_ = makeCryptoService();
    Win32Dialogs dialogs_;
    std::unique_ptr<Processes> processes_ = makeProcesses();
    std::unique_ptr<Registry> registry_ = makeRegistry();
    std::unique_ptr<Clock> clock_ = makeClock();
    std::unique_ptr<Shell> shell_ = makeShell();
    std::unique_ptr<Shortcuts> shortcuts_ = makeShortcuts();
    std::unique_ptr<Power> power_ = makePower();
    std::unique_ptr<Desktop> desktop_ = makeDesktop();
    Win32MessageQueue messages_;
};

} // namespace tarvelon
