#pragma once

#ifdef _WIN32
#include "tests/contract/win32_fixture.h"
#else
#include "tests/contract/sim_fixture.h"
#endif

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

class Contract : public testing::Test {
protected:
    bool put(const std::string& name, std::string_view bytes) {
        const auto file = files.open(folder + name, OpenMode::Create);
        return file && file->writeAt(0, bytes);
    }

    std::string get(const std::string& name) { return read(folder + name); }

    std::string read(const std::string& path) {
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

    std::unique_ptr<ContractWorkstation> workstation = std::make_unique<ContractWorkstation>();
    Platform platform = workstation->platform();
    Files& files = platform.files;
    const std::string folder = workstation->folder;
};

} // namespace tarvelon
