#pragma once

#include "platform/shell.h"

#include <map>
#include <vector>

namespace tarvelon {

class Faults;
class SimFiles;

struct OpenedDocument {
    std::string file;
    std::string folder;

    bool operator==(const OpenedDocument&) const = default;
};

/// Opens every address and every file that exists, unless a test says otherwise.
class SimShell : public Shell {
public:
    SimShell(Faults& faults, SimFiles& files);

    /// By the file or address as asked for.
    std::map<std::string, std::intptr_t> results;

    /// What was opened, oldest first.
    const std::vector<OpenedDocument>& opened() const { return opened_; }

    std::intptr_t open(const std::string& file, const std::string& folder) override;

private:
    std::intptr_t resultFor(const std::string& file, const std::string& folder) const;

    Faults& faults_;
    SimFiles& files_;
    std::vector<OpenedDocument> opened_;
};

} // namespace tarvelon
