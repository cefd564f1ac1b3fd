#include "platform/sim/sim_crypto.h"

#include "platform/sim/faults.h"

#include <nettle/md4.h>
#include <nettle/md5.h>
#include <nettle/sha1.h>

#include <cstring>
#include <optional>

namespace tarvelon {

namespace {

constexpr std::uint32_t rsaFull = 1;
constexpr std::uint32_t newKeyset = 8;
constexpr std::uint32_t verifyContext = 0xf0000000;
constexpr std::uint32_t md4 = 0x8002;
constexpr std::uint32_t md5 = 0x8003;
constexpr std::uint32_t sha1 = 0x8004;
constexpr std::uint32_t hashValue = 2;
constexpr std::uint32_t hashSize = 4;

} // namespace

/// One running digest. Reading its value ends it: more data is then refused, more reading is not.
class SimCrypto::Hash {
public:
    virtual ~Hash() = default;

    bool add(const void* data, std::size_t length) {
        if (value_) {
            return false;
        }
        update(length, static_cast<const std::uint8_t*>(data));
        return true;
    }
    const std::string& value() {
        if (!value_) {
            value_ = digest();
        }
        return *value_;
    }
    virtual std::uint32_t size() const = 0;

private:
    virtual void update(std::size_t length, const std::uint8_t* data) = 0;
    virtual std::string digest() = 0;

    std::optional<std::string> value_;
};

namespace {

template<class Context, auto start, auto feed, auto finish, std::uint32_t digestSize>
class NettleHash : public SimCrypto::Hash {
public:
    NettleHash() { start(&context_); }
    std::uint32_t size() const override { return digestSize; }

private:
    void update(std::size_t length, const std::uint8_t* data) override { feed(&context_, length, data); }
    std::string digest() override {
        std::uint8_t bytes[digestSize];
        finish(&context_, digestSize, bytes);
        return std::string(bytes, bytes + digestSize);
    }

    Context context_;
};

std::unique_ptr<SimCrypto::Hash> makeHash(std::uint32_t algorithm) {
    switch (algorithm) {
    case md4:
        return std::make_unique<NettleHash<md4_ctx, md4_init, md4_update, md4_digest, MD4_DIGEST_SIZE>>();
    case md5:
        return std::make_unique<NettleHash<md5_ctx, md5_init, md5_update, md5_digest, MD5_DIGEST_SIZE>>();
    case sha1:
        return std::make_unique<
            NettleHash<sha1_ctx, sha1_init, sha1_update, sha1_digest, SHA1_DIGEST_SIZE>>();
    default:
        return nullptr;
    }
}

} // namespace

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
    if (flags == newKeyset) {
        if (!containers.insert(containerName).second) {
            return false;
        }
    } else if (flags == 0) {
        if (!containers.contains(containerName)) {
            return false;
        }
    } else if (flags != verifyContext || !containerName.empty()) {
        return false;
    }
    provider = nextHandle_++;
    contexts_.insert(provider);
    return true;
}

bool SimCrypto::createHash(Handle provider, std::uint32_t algorithm, Handle& hash) {
    log_.push_back("CryptCreateHash " + std::to_string(algorithm));
    if (faults_.strikes(Operation::CreateHash) || !contexts_.contains(provider)) {
        return false;
    }
    auto made = makeHash(algorithm);
    if (!made) {
        return false;
    }
    hash = nextHandle_++;
    hashes_[hash] = std::move(made);
    return true;
}

bool SimCrypto::hashData(Handle hash, const void* data, std::size_t length) {
    log_.push_back("CryptHashData " + std::to_string(length));
    Hash* const running = find(hash);
    return !faults_.strikes(Operation::HashData) && running && running->add(data, length);
}

bool SimCrypto::getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) {
    log_.push_back("CryptGetHashParam " + std::to_string(parameter));
    Hash* const running = find(hash);
    if (faults_.strikes(Operation::GetHashParam) || !running ||
        (parameter != hashValue && parameter != hashSize)) {
        return false;
    }
    std::string value;
    if (parameter == hashSize) {
        const std::uint32_t size = running->size();
        value.assign(reinterpret_cast<const char*>(&size), sizeof size);
    } else if (buffer) {
        value = running->value();
    } else {
        value.resize(running->size());
    }
    const std::uint32_t room = length;
    length = static_cast<std::uint32_t>(value.size());
    if (!buffer) {
        return true;
    }
    if (room < length) {
        return false;
    }
    std::memcpy(buffer, value.data(), value.size());
    return true;
}

bool SimCrypto::destroyHash(Handle hash) {
    log_.emplace_back("CryptDestroyHash");
    return !faults_.strikes(Operation::DestroyHash) && hashes_.erase(hash) == 1;
}

} // namespace tarvelon
