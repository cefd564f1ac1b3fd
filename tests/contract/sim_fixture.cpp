#include "tests/contract/contract_fixture.h"

#include "platform/sim/workstation.h"

#include <algorithm>

namespace tarvelon {

namespace {

class SimContractWorkstation : public ContractWorkstation {
public:
    Platform platform() override { return sim_.platform(); }
    std::string emptyFolder() override {
        sim_.files.makeFolders(R"(C:\Contract\)");
        return R"(C:\Contract\)";
    }
    void hide(const std::string&) override {} // Listings show hidden files anyway.
    bool makeReadOnly(const std::string& path) override {
        sim_.files.denyWrites(path);
        return true;
    }
    std::shared_ptr<void> lock(const std::string& path) override {
        sim_.files.lock(path);
        return std::shared_ptr<void>(&sim_, [this, path](void*) { sim_.files.unlock(path); });
    }
    std::string emptyKey() override {
        makeKey(R"(Software\TarvelonContract)");
        return R"(Software\TarvelonContract)";
    }
    void makeKey(const std::string& path) override { sim_.registry.makeKey(Registry::currentUser, path); }
    void setValue(const std::string& path, const std::string& name, std::uint32_t type,
                  const std::string& bytes) override {
        sim_.registry.setValue(Registry::currentUser, path, name, {type, bytes});
    }
    void removeDefaultKeyContainer() override { sim_.crypto.containers.clear(); }
    void attach(Screen& screen) override { sim_.attach(screen); }
    bool hasMade(const std::string&, const std::string& commandLine) override {
        return std::ranges::any_of(sim_.processes.started(), [&](const StartedProcess& process) {
            return process.commandLine == commandLine;
        });
    }
    std::optional<LinkFile> readLink(const std::string& path) override {
        for (const auto& [linkPath, told] : sim_.shortcuts.shellLinks()) {
            if (linkPath == path && sim_.files.get(path)) {
                return LinkFile{told.path,      told.workingDirectory,
                                told.arguments, told.description.substr(0, told.description.find('\0')),
                                told.iconFile,  told.iconIndex,
                                told.showCmd};
            }
        }
        for (const auto& [linkPath, told] : sim_.shortcuts.scripted()) {
            if (linkPath == path && sim_.files.get(path)) {
                return LinkFile{.target = told.targetPath,
                                .workingDirectory = "",
                                .arguments = told.arguments,
                                .description = told.description,
                                .iconFile = "",
                                .showCmd = told.windowStyle};
            }
        }
        return std::nullopt;
    }
    Desktop::Window openWindow(const std::string& title, const std::string& className,
                               bool visible) override {
        return sim_.desktop.open({title, className, windowProcess(), visible});
    }
    std::uint32_t windowProcess() override { return 4321; }
    Processes& startedAgain() override {
        sim_.processes.otherInstance = true;
        return sim_.processes;
    }
    bool holdsPrivilege(const std::string& name) override {
        return std::ranges::any_of(sim_.power.calls(), [&](const std::string& call) {
            return call == "adjustPrivilege " + name + " 2147483651";
        });
    }

private:
    SimWorkstation sim_;
};

} // namespace

std::unique_ptr<ContractWorkstation> makeContractWorkstation() {
    return std::make_unique<SimContractWorkstation>();
}

} // namespace tarvelon
