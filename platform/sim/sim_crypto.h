#pragma once

#include "platform/crypto.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tarvelon {

class Faults;

/// The cryptographic service of a machine where no program has asked for a key container yet: opening the
/// default container fails until one call has made it.
class SimCrypto : public CryptoService {
public:
    explicit SimCrypto(Faults& faults);
    ~SimCrypto() override;

    /// Names of the providers that exist; a test may remove them.
    std::set<std::string> providers;
    /// Key containers that exist; the default one has the empty name.
    std::set<std::string> containers;
    /// Every call in order, such as "CryptHashData 65536".
    const std::vector<std::string>& log() const { return log_; }
    /// Hash objects that were made and not destroyed.
    std::size_t openHashes() const { return hashes_.size(); }

    bool acquireContext(Handle& provider, const std::string& container, const std::string& name,
                        std::uint32_t type, std::uint32_t flags) override;
    bool createHash(Handle provider, std::uint32_t algorithm, Handle& hash) override;
    bool hashData(Handle hash, const void* data, std::size_t length) override;
    bool getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) override;
    bool destroyHash(Handle hash) override;

private:
    struct Hash;
    Hash* find(Handle hash) const;

    Faults& faults_;
    std::vector<std::string> log_;
    std::set<Handle> contexts_;
    std::map<Handle, std::unique_ptr<Hash>> hashes_;
    Handle nextHandle_ = 0x1000;
};

} // namespace tarvelon
