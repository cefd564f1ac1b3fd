#pragma once

#include "platform/registry.h"

#include <array>

namespace tarvelon {

/// A registry key from which programs get started.
struct Location {
    const char* section; ///< Its section in the snapshot.
    Registry::Key root;
    const char* path;
    const char* label; ///< Its node in the tree.
    const char* nodeKey;
};

/// The watched locations, in the order in which they are walked and stand in the snapshot: ten of the local
/// machine, two of the user, five of the classes.
constexpr std::array<Location, 17> locations{{
    {"LM/R", Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\Run)", "Loaded in Run",
     "!LLIR"},
    {"LM/RO", Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\RunOnce)",
     "Loaded in RunOnce", "!LLIRO"},
    {"LM/ROX", Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\RunOnceEx)",
     "Loaded in RunOnceEx", "!LLIROX"},
    {"LM/RS", Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\RunServices)",
     "Loaded in RunServices", "!LLIRS"},
    {"LM/RSO", Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\RunServicesOnce)",
     "Loaded in RunServicesOnce", "!LLIRSO"},
    {"LM/SE", Registry::localMachine, R"(Software\CLASSES\exefile\shell\open\command)", "Spawned with EXE's",
     "!LSWE"},
    {"LM/SC", Registry::localMachine, R"(Software\CLASSES\comfile\shell\open\command)", "Spawned with COM's",
     "!LSWC"},
    {"LM/SB", Registry::localMachine, R"(Software\CLASSES\batfile\shell\open\command)", "Spawned with BAT's",
     "!LSWB"},
    {"LM/SH", Registry::localMachine, R"(Software\CLASSES\htafile\shell\open\command)", "Spawned with HTA's",
     "!LSWH"},
    {"LM/SP", Registry::localMachine, R"(Software\CLASSES\piffile\shell\open\command)", "Spawned with PIF's",
     "!LSWP"},
    {"CU/R", Registry::currentUser, R"(Software\Microsoft\Windows\CurrentVersion\Run)", "Loaded in Run",
     "!ULIR"},
    {"CU/RO", Registry::currentUser, R"(Software\Microsoft\Windows\CurrentVersion\RunOnce)",
     "Loaded in RunOnce", "!ULIRO"},
    {"CR/SE", Registry::classesRoot, R"(exefile\shell\open\command)", "Spawned with EXE's", "!RSWE"},
    {"CR/SC", Registry::classesRoot, R"(comfile\shell\open\command)", "Spawned with COM's", "!RSWC"},
    {"CR/SB", Registry::classesRoot, R"(batfile\shell\open\command)", "Spawned with BAT's", "!RSWB"},
    {"CR/SH", Registry::classesRoot, R"(htafile\shell\open\command)", "Spawned with HTA's", "!RSWH"},
    {"CR/SP", Registry::classesRoot, R"(piffile\shell\open\command)", "Spawned with PIF's", "!RSWP"},
}};

/// A root of the watched locations.
struct LocationRoot {
    Registry::Key root;
    const char* name;
    const char* nodeKey;
};

constexpr std::array<LocationRoot, 3> locationRoots{{{Registry::localMachine, "HKEY_LOCAL_MACHINE", "LOCAL"},
                                                     {Registry::currentUser, "HKEY_CURRENT_USER", "USER"},
                                                     {Registry::classesRoot, "HKEY_CLASSES_ROOT", "ROOT"}}};

} // namespace tarvelon
