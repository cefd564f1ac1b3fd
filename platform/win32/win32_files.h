#pragma once

#include "platform/files.h"
#include "platform/win32/system_library.h"
#include "platform/win32/windows_api.h"

namespace tarvelon {

class Win32Files : public Files {
public:
    Win32Files() = default;
    ~Win32Files() override;

    std::string firstName(const std::string& folder) override;
    std::string nextName() override;
    std::unique_ptr<OpenFile> open(const std::string& path, OpenMode mode) override;
    std::optional<std::uint64_t> length(const std::string& path) override;
    bool move(const std::string& from, const std::string& to) override;
    bool remove(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    bool searchTreeForFile(const std::string& root, const std::string& name, char* buffer) override;
    std::uint32_t getShortPathName(const std::string& path, char* buffer, std::uint32_t size) override;

private:
    void endListing();
    static bool moveAtOnce(const std::string& from, const std::string& to);

    HANDLE listing_ = INVALID_HANDLE_VALUE;
    std::optional<SystemLibrary> imageHelp_; ///< Loaded at the first search.
};

} // namespace tarvelon
