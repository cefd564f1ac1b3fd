#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

#include <wincrypt.h>

namespace tarvelon {

namespace {

const char* textOrNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

class Win32CryptoService : public CryptoService {
public:
    bool acquireContext(Handle& provider, const std::string& container, const std::string& name,
                        std::uint32_t type, std::uint32_t flags) override {
        HCRYPTPROV acquired = 0;
        if (!CryptAcquireContextA(&acquired, textOrNull(container), textOrNull(name), type, flags)) {
            return false;
        }
        provider = acquired;
        return true;
    }

    bool createHash(Handle provider, std::uint32_t algorithm, Handle& hash) override {
        HCRYPTHASH created = 0;
        if (!CryptCreateHash(provider, algorithm, 0, 0, &created)) {
            return false;
        }
        hash = created;
        return true;
    }

    bool hashData(Handle hash, const void* data, std::size_t length) override {
        return CryptHashData(hash, static_cast<const BYTE*>(data), static_cast<DWORD>(length), 0) != FALSE;
    }

    bool getHashParam(Handle hash, std::uint32_t parameter, void* buffer, std::uint32_t& length) override {
        DWORD size = length;
        const bool got = CryptGetHashParam(hash, parameter, static_cast<BYTE*>(buffer), &size, 0) != FALSE;
        length = size;
        return got;
    }

    bool destroyHash(Handle hash) override { return CryptDestroyHash(hash) != FALSE; }
};

} // namespace

std::unique_ptr<CryptoService> makeCryptoService() {
    return std::make_unique<Win32CryptoService>();
}

} // namespace tarvelon
