#pragma once

#include "platform/sim/workstation.h"

#include <algorithm>

namespace tarvelon {

/// The simulated workstation in the place of Windows.
class ContractWorkstation {
public:
    ContractWorkstation() {
        sim_.files.makeFolders(folder);
        makeKey(key);
    }

    Platform platform() { return sim_.platform(); }
    std::shared_ptr<void> lock(const std::string& path) {
        sim_.files.lock(path);
        return std::shared_ptr<void>(&sim_, [this, path](void*) { sim_.files.unlock(path); });
    }
    void makeKey(const std::string& path) { sim_.registry.makeKey(Registry::currentUser, path); }
    void setValue(const std::string& path, const std::string& name, std::uint32_t type,
                  const std::string& bytes) {
        sim_.registry.setValue(Registry::currentUser, path, name, {type, bytes});
    }
    void removeDefaultKeyContainer() { sim_.crypto.containers.clear(); }
    void attach(Screen& screen) { sim_.attach(screen); }
    bool hasMade(const std::string&, const std::string& commandLine) {
        const auto& started = sim_.processes.started();
        const auto& opened = sim_.shell.opened();
        return std::ranges::count(started, commandLine, &StartedProcess::commandLine) +
                   std::ranges::count(opened, commandLine, &OpenedDocument::file) ==
               1;
    }
    std::string readLink(const std::string& path) {
        for (const auto& [linkPath, told] : sim_.shortcuts.shellLinks()) {
            if (linkPath == path) {
                return told.path + "|" + told.workingDirectory + "|" + told.arguments + "|" +
                       told.description.c_str() + "|" + told.iconFile + "|" + std::to_string(told.iconIndex) +
                       "|" + std::to_string(told.showCmd);
            }
        }
        for (const auto& [linkPath, told] : sim_.shortcuts.scripted()) {
            if (linkPath == path) {
                return told.targetPath + "||" + told.arguments + "|" + told.description + "||0|" +
                       std::to_string(told.windowStyle);
            }
        }
        return {};
    }
    Desktop::Window openWindow(const std::string& title, const std::string& className, bool visible) {
        return sim_.desktop.open({title, className, windowProcess, visible});
    }
    const std::uint32_t windowProcess = 4321;
    const std::string folder = R"(C:\Contract\)";
    const std::string key = R"(Software\TarvelonContract)";

private:
    SimWorkstation sim_;
};

} // namespace tarvelon
