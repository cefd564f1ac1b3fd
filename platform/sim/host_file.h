#pragma once

#include "platform/files.h"

namespace tarvelon {

class Faults;

/// An open file of the host, by its descriptor, which it closes.
class HostFile : public OpenFile {
public:
    HostFile(int descriptor, Faults& faults);
    ~HostFile() override;

    std::optional<std::uint64_t> length() override;
    std::optional<std::uint64_t> lastWrite() override;
    std::optional<std::size_t> readAt(std::uint64_t position, void* buffer, std::size_t count) override;
    bool writeAt(std::uint64_t position, std::string_view bytes) override;
    bool setLength(std::uint64_t length) override;

    /// Cuts the file to nothing, past all faults.
    bool empty();

private:
    std::uint64_t hostLength() const;

    int descriptor_;
    Faults& faults_;
};

} // namespace tarvelon
