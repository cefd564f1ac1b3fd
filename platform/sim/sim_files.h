#pragma once

#include "platform/files.h"
#include "platform/sim/sim_codepage.h"

#include <sys/types.h>

#include <set>
#include <string>
#include <vector>

namespace tarvelon {

class Faults;

/// Real files below a host folder that stands for drive C. Names count without regard to case and are kept on
/// the host in UTF-8; every entry is found by its short name too. A name that the code page lacks a character
/// of is listed by its short name, if the drive has such. A name in the right case costs what the host's own
/// call costs.
class SimFiles : public Files {
public:
    SimFiles(Faults& faults, SimCodePage& codePage, std::string hostFolder);

    /// Where a path lies on the host, whether it exists or not. Throws std::invalid_argument for a bad path.
    std::string hostPath(const std::string& path) const;

    /// For tests, past all locks and faults: writes a whole file and makes the folders it needs. The time of
    /// the last write always changes.
    void put(const std::string& path, std::string_view bytes);
    /// The same by a path in UTF-8, for names that the code page cannot hold.
    void putByUtf8(const std::string& path, std::string_view bytes);
    /// The whole file; empty when it does not exist.
    std::optional<std::string> get(const std::string& path) const;
    void makeFolders(const std::string& path);

    /// The drive gives no short names: names that the code page lacks a character of are listed with a "?".
    bool withoutShortNames = false;

    /// Another process keeps the file to itself: nothing opens, copies or removes it.
    void lock(const std::string& path) { locked_.insert(lockName(path)); }
    void unlock(const std::string& path) { locked_.erase(lockName(path)); }
    /// The file is read-only.
    void denyWrites(const std::string& path) { readOnly_.insert(lockName(path)); }
    void allowWrites(const std::string& path) { readOnly_.erase(lockName(path)); }
    /// Where files were moved to with bytes that a loss of power would have taken.
    const std::vector<std::string>& movedUnflushed() const { return movedUnflushed_; }

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
    /// A path on the host, in the case as asked for.
    struct Place {
        std::string path;
        std::size_t rootLength = 0;

        bool isRoot() const { return path.size() == rootLength; }
    };

    struct Way {
        std::string source;
        std::string target;
    };

    std::optional<Place> place(const std::string& path) const;
    std::optional<Place> placeByUtf8(std::string_view asked) const;
    std::string hostPathByUtf8(const std::string& path) const;
    void makeFoldersByUtf8(const std::string& path);
    std::string shown(const std::string& hostName, const std::vector<std::string>& namesInFolder) const;
    /// The path of what exists there in any case; with `newLast`, also where a new entry of an existing
    /// folder would lie.
    std::optional<std::string> find(const Place& asked, bool newLast = false) const;
    std::optional<Way> findWay(const std::string& from, const std::string& to) const;
    std::string entryLike(const std::string& hostFolder, const std::string& name) const;
    std::vector<std::string> namesIn(const std::string& hostFolder) const;
    std::string shortPathTo(const std::string& host, std::size_t rootLength) const;
    std::optional<std::string> searchFolder(const std::string& hostFolder, const std::string& shownFolder,
                                            const std::string& upperName) const;

    std::string lockName(const std::string& path) const;
    bool isLocked(const std::string& path) const;
    bool isReadOnly(const std::string& path) const;

    Faults& faults_;
    SimCodePage& codePage_;
    const std::string root_;
    std::set<std::string> locked_;
    std::set<std::string> readOnly_;
    std::set<ino_t> unflushed_; ///< Files by their numbers on the host.
    std::vector<std::string> movedUnflushed_;
    std::vector<std::string> listing_;
    std::size_t nextInListing_ = 0;
};

} // namespace tarvelon
