#include "platform/win32/win32_registry.h"

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

} // namespace

std::int32_t Win32Registry::openKey(Key root, const std::string& path, std::uint32_t access, Key& key) {
    HKEY opened = nullptr;
    const LONG result = RegOpenKeyExA(hkeyOf(root), path.c_str(), 0, access, &opened);
    key = result == ERROR_SUCCESS ? keyOf(opened) : 0;
    return result;
}

std::int32_t Win32Registry::enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) {
    return RegEnumKeyA(hkeyOf(key), index, name, size);
}

std::int32_t Win32Registry::enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize,
                                      char* data, std::uint32_t& dataSize) {
    DWORD nameLength = nameSize;
    DWORD dataLength = dataSize;
    const LONG result = RegEnumValueA(hkeyOf(key), index, name, &nameLength, nullptr, nullptr,
                                      reinterpret_cast<BYTE*>(data), &dataLength);
    nameSize = nameLength;
    dataSize = dataLength;
    return result;
}

std::int32_t Win32Registry::queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                                       std::uint32_t& size) {
    DWORD valueType = 0;
    DWORD length = size;
    const LONG result = RegQueryValueExA(hkeyOf(key), name.c_str(), nullptr, &valueType,
                                         reinterpret_cast<BYTE*>(data), &length);
    type = valueType;
    size = length;
    return result;
}

std::int32_t Win32Registry::deleteValue(Key key, const std::string& name) {
    return RegDeleteValueA(hkeyOf(key), name.c_str());
}

std::int32_t Win32Registry::closeKey(Key key) {
    return RegCloseKey(hkeyOf(key));
}

} // namespace tarvelon
