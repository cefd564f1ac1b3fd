#pragma once

#include "platform/platform.h"
#include "platform/win32/view.h"
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

/// The real Windows: everything behind `Platform`, and the view that draws the screens. Made once, on the one
/// thread, before any screen is loaded; it outlives the screens' windows.
class Win32Platform {
public:
    Win32Platform();
    Win32Platform(const Win32Platform&) = delete;
    ~Win32Platform();

    Platform platform();
    Win32View& view() { return view_; }

    /// Handles messages until the process ends or the thread is told to quit; gives the exit code.
    int runMessageLoop() { return messages_.run(); }

private:
    Win32View view_;
    Win32CodePage codePage_;
    Win32Files files_;
    Win32SystemFolders folders_;
    Win32CryptoService crypto_;
    Win32Dialogs dialogs_{view_};
    Win32Processes processes_;
    Win32Registry registry_;
    Win32Clock clock_;
    Win32Shell shell_;
    Win32Shortcuts shortcuts_;
    Win32Power power_;
    Win32Desktop desktop_;
    Win32MessageQueue messages_{view_};
};

} // namespace tarvelon
