#pragma once

#include "platform/files.h"
#include "platform/win32/owned.h"
#include "platform/win32/system_library.h"

#include <vector>

namespace tarvelon {

class Win32Files : public Files {
public:
    std::string firstName(const std::string& folder) override;
    std::string nextName() override;
    std::unique_ptr<OpenFile> open(const std::string& path, OpenMode mode) override;
    std::optional<std::uint64_t> length(const std::string& path) override;
    bool move(const std::string& from, const std::string& to) override;
    bool remove(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    bool searchTreeForFile(const std::string& root, const std::string& name, char* buffer) override;
    std::uint32_t getShortPathName(const std::string& path, char* buffer, std::uint32_t size) override;

    /// Lets go of the folder listed last, and of its names.
    void forgetListing();

private:
    void list(const std::string& folder);
    static bool moveAtOnce(const std::string& from, const std::string& to);

    // The folder listed last. Each pass of a scan lists it; its names are asked for anew when it has changed.
    std::string folder_;
    std::vector<std::string> names_;
    std::size_t next_ = 0;
    bool allListed_ = false;
    OwnedListing listing_;
    OwnedChange change_;                     ///< Signalled when a name in the folder comes, goes or changes.
    std::optional<SystemLibrary> debugHelp_; ///< Loaded at the first search.
    std::optional<SystemLibrary> imageHelp_;
};

/// The name of what was found, in the process's code page; where that cannot hold it, the short name, if it
/// has one.
std::string nameOf(std::wstring_view found, std::wstring_view shortName);

} // namespace tarvelon
