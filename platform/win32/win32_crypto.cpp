#include "platform/win32/win32_crypto.h"

#include "platform/win32/windows_api.h"

#include <wincrypt.h>

namespace tarvelon {

namespace {

const char* textOrNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

} // namespace

bool Win32CryptoService::acquireContext(Handle& provider, const std::string& container,
                                        const std::string& name, std::uint32_t type, std::uint32_t flags) {
    HCRYPTPROV acquired = 0;
    if (!CryptAcquireContextA(&acquired, textOrNull(container), textOrNull(name), type, flags)) {
        return false;
    }
    provider = acquired;
    return true;
}

bool Win32CryptoService::createHash(Handle provider, std::uint32_t algorithm, Handle& hash) {
    HCRYPTHASH created = 0;
    if (!CryptCreateHash(provider, algorithm, 0, 0, &created)) {
        return false;
    }
    hash = created;
    return true;
}

bool Win32CryptoService::hashData(Handle hash, const void* data, std::size_t length) {
    return CryptHashData(hash, static_cast<const BYTE*>(data), static_cast<DWORD>(length), 0) != FALSE;
}

bool Win32CryptoService::getHashParam(Handle hash, std::uint32_t parameter, void* buffer,
                                      std::uint32_t& length) {
    DWORD size = length;
    const bool got = CryptGetHashParam(hash, parameter, static_cast<BYTE*>(buffer), &size, 0) != FALSE;
    length = size;
    return got;
}

bool Win32CryptoService::destroyHash(Handle hash) {
    return CryptDestroyHash(hash) != FALSE;
}

} // namespace tarvelon
