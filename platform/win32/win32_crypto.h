#pragma once

#include "platform/crypto.h"

namespace tarvelon {

class Win32CryptoService : public CryptoService {
public:
    bool acquireContext(Handle& provider, const std::string& container, const std::string& name,
                        std::uint32_t type, std::uint32_t flags) override;
    bool createHash(Handle provider, std::uint32_t algorithm, Handle& hash) override;
    bool hashData(Handle hash, const void* data, std::size_t length) override;
    bool getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) override;
    bool destroyHash(Handle hash) override;
};

} // namespace tarvelon
