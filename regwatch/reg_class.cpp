#include "regwatch/reg_class.h"

#include <cstdio>
#include <limits>
#include <string_view>

namespace tarvelon {

namespace {

constexpr std::int32_t success = 0;
constexpr std::uint32_t allRights = 0xf003f;

constexpr std::uint32_t textType = 1;
constexpr std::uint32_t binaryType = 3;

// These sizes decide what a snapshot records: what does not fit is never asked for again with more room.
constexpr std::uint32_t keyNameSize = 256;
constexpr std::uint32_t listedSize = 240;
constexpr std::uint32_t valueSize = 256;

/// Collects names until `fetch(index, name)`, which fills the buffer, gives a result other than success. The
/// index has 16 bits; a list that it cannot count is lost as a whole.
template<class Fetch>
std::optional<std::vector<std::string>> list(std::uint32_t size, Fetch fetch) {
    constexpr std::uint32_t lastIndex = std::numeric_limits<std::int16_t>::max();
    std::vector<std::string> names;
    std::string name(size, ' ');
    for (std::uint32_t index = 0; fetch(index, name.data()) == success; ++index) {
        if (index == lastIndex) {
            return std::nullopt;
        }
        names.emplace_back(name.c_str());
    }
    return names;
}

std::string inHex(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        char digits[4];
        std::snprintf(digits, sizeof digits, code < 10 ? "%02X " : "%X ", code);
        text += digits;
    }
    return text;
}

} // namespace

RegClass::RegClass(Registry& registry)
    : registry_(registry) {}

RegClass::~RegClass() {
    registry_.closeKey(key_);
}

std::optional<std::vector<std::string>> RegClass::GetAllSubDirectories() {
    if (!open_) {
        return std::nullopt;
    }
    return list(keyNameSize, [this](std::uint32_t index, char* name) {
        return registry_.enumKey(key_, index, name, keyNameSize);
    });
}

std::optional<std::vector<std::string>> RegClass::GetAllValues() {
    if (!open_) {
        return std::nullopt;
    }
    return list(listedSize, [this](std::uint32_t index, char* name) {
        char unused[listedSize];
        std::uint32_t nameSize = listedSize;
        std::uint32_t dataSize = listedSize;
        return registry_.enumValue(key_, index, name, nameSize, unused, dataSize);
    });
}

std::string RegClass::GetValue(const std::string& name) {
    std::string buffer(valueSize, ' ');
    std::uint32_t type = 0;
    std::uint32_t size = valueSize;
    if (!open_ || registry_.queryValue(key_, name, type, buffer.data(), size) != success) {
        return {};
    }
    if (type != textType && type != binaryType) {
        return buffer;
    }
    buffer.resize(size > 0 ? size - 1 : 0);
    return type == textType ? buffer : inHex(buffer);
}

bool RegClass::OpenRegistry(Registry::Key root, const std::string& subKey) {
    if (root == 0) {
        open_ = false;
        return false;
    }
    root_ = root;
    subKey_ = subKey;
    if (open_) {
        CloseRegistry();
        open_ = false;
    }
    open_ = registry_.openKey(root_, subKey_, allRights, key_) == success;
    return open_;
}

bool RegClass::DeleteKey(const std::string& name) {
    registry_.deleteValue(key_, name);
    return false;
}

bool RegClass::CloseRegistry() {
    if (registry_.closeKey(key_) != success) {
        return false;
    }
    open_ = false;
    return true;
}

std::string valueOf(Registry& registry, Registry::Key root, const std::string& subKey,
                    const std::string& name) {
    RegClass key(registry);
    key.OpenRegistry(root, subKey);
    std::string value = key.GetValue(name);
    key.CloseRegistry();
    return value;
}

} // namespace tarvelon
