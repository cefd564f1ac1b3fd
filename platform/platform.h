#pragma once

namespace tarvelon {

class CodePage;
class Files;
class SystemFolders;
class CryptoService;
class MessageQueue;
class Dialogs;
class Processes;
class Registry;
class Clock;
class Shell;
class Shortcuts;
class Power;
class Desktop;

/// Everything outside the process, one interface for each group of system calls.
struct Platform {
    CodePage& codePage;   ///< Of this process: texts are kept in it.
    CodePage& systemPage; ///< The ANSI page that programs get which ask for no other.
    Files& files;
    SystemFolders& folders;
    CryptoService& crypto;
    MessageQueue& messages;
    Dialogs& dialogs;
    Processes& processes;
    Registry& registry;
    Clock& clock;
    Shell& shell;
    Shortcuts& shortcuts;
    Power& power;
    Desktop& desktop;
};

} // namespace tarvelon
