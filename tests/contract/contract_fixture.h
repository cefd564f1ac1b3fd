#pragma once

#include "platform/clock.h"
#include "platform/codepage.h"
#include "platform/crypto.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "platform/power.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/shortcuts.h"
#include "ui/controls/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

/// A link file as the system's own object reads it.
struct LinkFile {
    std::string target;
    std::string workingDirectory;
    std::string arguments;
    std::string description;
    std::string iconFile;
    int iconIndex = 0;
    int showCmd = 0;
};

/// A workstation to hold against the contract, and what a test does to it from outside the program.
class ContractWorkstation {
public:
    virtual ~ContractWorkstation() = default;

    virtual Platform platform() = 0;
    /// An empty folder, with its trailing backslash.
    virtual std::string emptyFolder() = 0;
    virtual void hide(const std::string& path) = 0;
    /// False when this machine does not hold anybody back from writing: Wine does not, for its administrator.
    virtual bool makeReadOnly(const std::string& path) = 0;
    /// Keeps the file open so that nobody else can, until the result goes.
    virtual std::shared_ptr<void> lock(const std::string& path) = 0;
    /// A registry key without values and sub-keys: the path below `Registry::currentUser`.
    virtual std::string emptyKey() = 0;
    virtual void makeKey(const std::string& path) = 0;
    virtual void setValue(const std::string& path, const std::string& name, std::uint32_t type,
                          const std::string& bytes) = 0;
    /// Removes the key container of the empty name.
    virtual void removeDefaultKeyContainer() = 0;
    /// Its timers run from its loading on. The screen outlives the workstation.
    virtual void attach(Screen& screen) = 0;
    /// Whether a command line that makes this file has been run, at the latest within some seconds.
    virtual bool hasMade(const std::string& path, const std::string& commandLine) = 0;
    /// Empty when there is no link file.
    virtual std::optional<LinkFile> readLink(const std::string& path) = 0;
    /// Opens a window that closes when it is asked to, at the latest together with the workstation.
    virtual Desktop::Window openWindow(const std::string& title, const std::string& className,
                                       bool visible = true) = 0;
    /// The process that these windows belong to.
    virtual std::uint32_t windowProcess() = 0;
    /// The program, started a second time while it runs.
    virtual Processes& startedAgain() = 0;
    /// Whether the privilege is in force for this process.
    virtual bool holdsPrivilege(const std::string& name) = 0;
};

std::unique_ptr<ContractWorkstation> makeContractWorkstation();

class Contract : public testing::Test {
protected:
    bool put(const std::string& path, std::string_view bytes) {
        const auto file = files.open(path, OpenMode::Create);
        return file && file->writeAt(0, bytes);
    }

    std::string get(const std::string& path) {
        const auto file = files.open(path, OpenMode::Read);
        if (!file) {
            return "(cannot be opened)";
        }
        std::string bytes(static_cast<std::size_t>(file->length().value_or(0)), '?');
        const auto came = file->readAt(0, bytes.data(), bytes.size());
        return came == bytes.size() ? bytes : "(cannot be read)";
    }

    std::vector<std::string> list(const std::string& inFolder) {
        std::vector<std::string> names;
        for (std::string name = files.firstName(inFolder); !name.empty(); name = files.nextName()) {
            names.push_back(name);
        }
        return names;
    }

    std::unique_ptr<ContractWorkstation> workstation = makeContractWorkstation();
    Platform platform = workstation->platform();
    Files& files = platform.files;
    const std::string folder = workstation->emptyFolder();
};

} // namespace tarvelon
