#pragma once

namespace tarvelon {

struct Globals;
struct Platform;
class SettingsFile;
class FuncMod;

/// What nearly every part works with. A part that derives from it has the four under their names.
struct Services {
    Globals& globals;
    Platform& platform;
    SettingsFile& settings;
    const FuncMod& funcMod;
};

} // namespace tarvelon
