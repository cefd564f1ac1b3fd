#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarvelon {

/// The system's cryptographic service, call by call. Handles are never 0; every call gives false on failure.
class CryptoService {
public:
    using Handle = std::uintptr_t;

    virtual ~CryptoService() = default;

    /// `CryptAcquireContextA`.
    virtual bool acquireContext(Handle& provider, const std::string& container, const std::string& name,
                                std::uint32_t type, std::uint32_t flags) = 0;
    /// `CryptCreateHash` without a key.
    virtual bool createHash(Handle provider, std::uint32_t algorithm, Handle& hash) = 0;
    /// `CryptHashData` with flags 0.
    virtual bool hashData(Handle hash, const void* data, std::size_t length) = 0;
    /// `CryptGetHashParam`: `length` holds the buffer's size before and the value's length after.
    virtual bool getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) = 0;
    /// `CryptDestroyHash`.
    virtual bool destroyHash(Handle hash) = 0;
};

} // namespace tarvelon
