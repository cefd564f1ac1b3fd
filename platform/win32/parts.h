#pragma once

#include "platform/clock.h"
#include "platform/codepage.h"
#include "platform/crypto.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/power.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/shortcuts.h"

#include <memory>

namespace tarvelon {

// Thin calls of the real Windows, each in the file of its name.
std::unique_ptr<Clock> makeClock();
/// The process's page, and the system's ANSI page.
std::unique_ptr<CodePage> makeCodePage();
std::unique_ptr<CodePage> makeSystemPage();
std::unique_ptr<CryptoService> makeCryptoService();
std::unique_ptr<Desktop> makeDesktop();
std::unique_ptr<Power> makePower();
std::unique_ptr<Processes> makeProcesses();
std::unique_ptr<Registry> makeRegistry();
std::unique_ptr<Shell> makeShell();
/// Needs the component library on its thread.
std::unique_ptr<Shortcuts> makeShortcuts();
std::unique_ptr<SystemFolders> makeSystemFolders();

/// Null when it cannot be opened.
std::unique_ptr<OpenFile> openFile(const std::string& path, OpenMode mode);

} // namespace tarvelon
