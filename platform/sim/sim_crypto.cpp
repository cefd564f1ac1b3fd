#include "platform/sim/sim_crypto.h"

#include "platform/sim/faults.h"

#include <nettle/nettle-meta.h>

#include <cstring>

namespace tarvelon {

namespace {

constexpr std::uint32_t rsaFull = 1;
constexpr std::uint32_t newKeyset = 8;
constexpr std::uint32_t hashValue = 2;

/// Null for a number that stands for none.
const nettle_hash* algorithmOf(std::uint32_t number) {
    return number == 0x8002   ? &nettle_md4
           : number == 0x8003 ? &nettle_md5
           : number == 0x8004 ? &nettle_sha1
                              : nullptr;
}

} // namespace

/// One running digest. Reading its value ends it: more data is then refused, more reading is not.
struct SimCrypto::Hash {
    explicit Hash(const nettle_hash& algorithm)
        : kind(algorithm)
        , context(kind.context_size) {
        kind.init(context.data());
    }

    const nettle_hash& kind;
    std::vector<std::uint8_t> context;
    std::vector<std::uint8_t> value{};
};

SimCrypto::SimCrypto(Faults& faults)
    : providers{"Microsoft Enhanced Cryptographic Provider v1.0",
                "Microsoft Base Cryptographic Provider v1.0"}
    , faults_(faults) {}

SimCrypto::~SimCrypto() = default;

SimCrypto::Hash* SimCrypto::find(Handle hash) const {
    const auto place = hashes_.find(hash);
    return place == hashes_.end() ? nullptr : place->second.get();
}

bool SimCrypto::acquireContext(Handle& provider, const std::string& container, const std::string& name,
                               std::uint32_t type, std::uint32_t flags) {
    // The service sees zero-ended texts.
    const std::string containerName = container.c_str();
    const std::string providerName = name.c_str();
    log_.push_back("CryptAcquireContextA \"" + containerName + "\" \"" + providerName + "\" " +
                   std::to_string(type) + " " + std::to_string(flags));
    if (faults_.strikes(Operation::AcquireContext) || type != rsaFull || !providers.contains(providerName)) {
        return false;
    }
    const bool goesOn = flags == newKeyset ? containers.insert(containerName).second
                                           : flags == 0 && containers.contains(containerName);
    if (!goesOn) {
        return false;
    }
    provider = nextHandle_++;
    contexts_.insert(provider);
    return true;
}

bool SimCrypto::createHash(Handle provider, std::uint32_t algorithm, Handle& hash) {
    log_.push_back("CryptCreateHash " + std::to_string(algorithm));
    if (faults_.strikes(Operation::CreateHash) || !contexts_.contains(provider) ||
        algorithmOf(algorithm) == nullptr) {
        return false;
    }
    hash = nextHandle_++;
    hashes_[hash] = std::make_unique<Hash>(*algorithmOf(algorithm));
    return true;
}

bool SimCrypto::hashData(Handle hash, const void* data, std::size_t length) {
    log_.push_back("CryptHashData " + std::to_string(length));
    Hash* const running = find(hash);
    if (faults_.strikes(Operation::HashData) || !running || !running->value.empty()) {
        return false;
    }
    running->kind.update(running->context.data(), length, static_cast<const std::uint8_t*>(data));
    return true;
}

bool SimCrypto::getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) {
    log_.push_back("CryptGetHashParam " + std::to_string(parameter));
    Hash* const running = find(hash);
    if (faults_.strikes(Operation::GetHashParam) || !running || parameter != hashValue ||
        length < running->kind.digest_size) {
        return false;
    }
    length = running->kind.digest_size;
    if (running->value.empty()) {
        running->value.resize(length);
        running->kind.digest(running->context.data(), length, running->value.data());
    }
    std::memcpy(buffer, running->value.data(), length);
    return true;
}

bool SimCrypto::destroyHash(Handle hash) {
    log_.emplace_back("CryptDestroyHash");
    return !faults_.strikes(Operation::DestroyHash) && hashes_.erase(hash) == 1;
}

} // namespace tarvelon
