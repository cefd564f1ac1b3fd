#include "planted_value.h"

#include "workplace.h"

#include <algorithm>
#include <stdexcept>

namespace e2e {

namespace {

/// An open key; none when it cannot be opened.
class Key {
public:
    Key(HKEY root, const std::string& path, REGSAM rights) {
        if (RegOpenKeyExA(root, path.c_str(), 0, rights, &key_) != ERROR_SUCCESS) {
            key_ = nullptr;
        }
    }
    Key(const Key&) = delete;
    ~Key() { RegCloseKey(key_); }

    HKEY handle() const { return key_; }

private:
    HKEY key_ = nullptr;
};

std::string asText(const std::string& text) {
    return text + std::string(1, '\0');
}

} // namespace

PlantedValue::PlantedValue(HKEY root, std::string key, std::string name, const std::string& text)
    : PlantedValue(root, std::move(key), std::move(name), REG_SZ, asText(text)) {}

PlantedValue::PlantedValue(HKEY root, std::string key, std::string name, DWORD type, const std::string& bytes)
    : root_(root)
    , key_(std::move(key))
    , name_(std::move(name)) {
    if (inputs().asGuest && stands()) {
        throw std::runtime_error("somebody's registry value is in the way: " + key_ + "\\" + name_);
    }
    for (std::size_t end = 0; end < key_.size(); ++end) {
        end = std::min(key_.find('\\', end), key_.size());
        if (Key(root_, key_.substr(0, end), KEY_READ).handle() == nullptr) {
            made_.push_back(key_.substr(0, end));
            HKEY made = nullptr;
            RegCreateKeyA(root_, made_.back().c_str(), &made);
            RegCloseKey(made);
        }
    }
    write(type, bytes);
}

PlantedValue::~PlantedValue() {
    remove();
    std::for_each(made_.rbegin(), made_.rend(),
                  [this](const std::string& key) { RegDeleteKeyA(root_, key.c_str()); });
}

void PlantedValue::rewrite(const std::string& text) const {
    write(REG_SZ, asText(text));
}

void PlantedValue::remove() const {
    RegDeleteValueA(Key(root_, key_, KEY_SET_VALUE).handle(), name_.c_str());
}

bool PlantedValue::stands() const {
    return RegQueryValueExA(Key(root_, key_, KEY_READ).handle(), name_.c_str(), nullptr, nullptr, nullptr,
                            nullptr) == ERROR_SUCCESS;
}

void PlantedValue::write(DWORD type, const std::string& bytes) const {
    const Key key(root_, key_, KEY_SET_VALUE);
    if (RegSetValueExA(key.handle(), name_.c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                       static_cast<DWORD>(bytes.size())) != ERROR_SUCCESS) {
        throw std::runtime_error("cannot write the registry value " + key_ + "\\" + name_);
    }
}

} // namespace e2e
