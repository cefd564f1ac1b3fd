#pragma once

#include "platform/registry.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

/// The only door to the registry: one object holds at most one open key. Everything it gives is text for a
/// person or for the snapshot file; nothing is ever written, and failures are never more than an empty
/// answer.
class RegClass {
public:
    explicit RegClass(Registry& registry);
    RegClass(const RegClass&) = delete;
    RegClass& operator=(const RegClass&) = delete;
    /// Closes the key once more, open or not.
    ~RegClass();

    /// The names of the key's sub-keys. Nothing without an open key, and for more than 32,767 of them.
    std::optional<std::vector<std::string>> GetAllSubDirectories();

    /// The names of the key's values up to the first whose name or data takes more than 240 bytes, which ends
    /// the list. Nothing without an open key, and for more than 32,767 of them.
    std::optional<std::vector<std::string>> GetAllValues();

    /// One value as text, by its type; empty without an open key, for a missing value and for one of more
    /// than 256 bytes.
    ///  - A text is what it holds, without its last byte, the final zero.
    ///  - Binary data is each byte but the last in hexadecimal capitals with a blank behind it. A digit from
    ///  0
    ///    to 9 alone gets a zero in front, a letter alone does not: "05 A 1F ".
    ///  - Anything else is 256 characters: the value's bytes as they are, then blanks.
    std::string GetValue(const std::string& name);

    /// What the last `OpenRegistry` was given; 0 and empty before that.
    Registry::Key RegistryRootKey() const { return root_; }
    const std::string& SubDirectory() const { return subKey_; }

    /// Opens the key with all rights, also for reading alone, and closes the one before. False when it cannot
    /// be opened; after a root of 0 the object just counts as closed.
    bool OpenRegistry(Registry::Key root, const std::string& subKey);

    /// Deletes a value of the key, never a key. Always false: whoever wants to know looks again.
    bool DeleteKey(const std::string& name);

    /// False, and still open, when the system cannot close the key.
    bool CloseRegistry();

private:
    Registry& registry_;
    Registry::Key root_ = 0;
    std::string subKey_;
    Registry::Key key_ = 0; ///< Kept when the key is closed; 0 when it could not be opened.
    bool open_ = false;
};

/// One value as `GetValue` gives it, of a key that is opened and closed for it.
std::string valueOf(Registry& registry, Registry::Key root, const std::string& subKey,
                    const std::string& name);

} // namespace tarvelon
