#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

/// Keys are 32 bits wide on every system; a 64-bit one wants their sign in the upper half.
HKEY hkeyOf(Registry::Key key) {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(key)));
}

Registry::Key keyOf(HKEY handle) {
    return static_cast<std::uint32_t>(reinterpret_cast<ULONG_PTR>(handle));
}

class Win32Registry : public Registry {
public:
    std::int32_t openKey(Key root, const std::string& path, std::uint32_t access, Key& key) override {
        HKEY opened = nullptr;
        const LONG result = RegOpenKeyExA(hkeyOf(root), path.c_str(), 0, access, &opened);
        key = result == ERROR_SUCCESS ? keyOf(opened) : 0;
        return result;
    }

    std::int32_t enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) override {
        return RegEnumKeyA(hkeyOf(key), index, name, size);
    }

    std::int32_t enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize, char* data,
                           std::uint32_t& dataSize) override {
        DWORD nameLength = nameSize;
        DWORD dataLength = dataSize;
        const LONG result = RegEnumValueA(hkeyOf(key), index, name, &nameLength, nullptr, nullptr,
                                          reinterpret_cast<BYTE*>(data), &dataLength);
        nameSize = nameLength;
        dataSize = dataLength;
        return result;
    }

    std::int32_t queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                            std::uint32_t& size) override {
        DWORD valueType = 0;
        DWORD length = size;
        const LONG result = RegQueryValueExA(hkeyOf(key), name.c_str(), nullptr, &valueType,
                                             reinterpret_cast<BYTE*>(data), &length);
        type = valueType;
        size = length;
        return result;
    }

    std::int32_t deleteValue(Key key, const std::string& name) override {
        return RegDeleteValueA(hkeyOf(key), name.c_str());
    }

    std::int32_t closeKey(Key key) override { return RegCloseKey(hkeyOf(key)); }
};

} // namespace

std::unique_ptr<Registry> makeRegistry() {
    return std::make_unique<Win32Registry>();
}

} // namespace tarvelon
