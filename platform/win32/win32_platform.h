#pragma once

#include "platform/platform.h"
#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_codepage.h"
#include "platform/win32/win32_crypto.h"
#include "platform/win32/win32_desktop.h"
#include "platform/win32/win32_dialogs.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_folders.h"
#include "platform/win32/win32_messages.h"
#include "platform/win32/win32_power.h"
#include "platform/win32/win32_processes.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_shell.h"
#include "platform/win32/win32_shortcuts.h"

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
    int runMessageLoop() { return messages_.run(); }

private:
    Win32CodePage codePage_;
    Win32Files files_;
    Win32SystemFolders folders_;
    Win32CryptoService crypto_;
    Win32Dialogs dialogs_;
    Win32Processes processes_;
    Win32Registry registry_;
    Win32Clock clock_;
    Win32Shell shell_;
    Win32Shortcuts shortcuts_;
    Win32Power power_;
    Win32Desktop desktop_;
    Win32MessageQueue messages_;
};

} // namespace tarvelon
