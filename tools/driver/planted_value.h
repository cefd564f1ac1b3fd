#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace e2e {

/// A registry value that stands while the object lives, with the keys that had to be made for it. As a guest
/// it throws where somebody has one of its name.
class PlantedValue {
public:
    /// A text, as most are.
    PlantedValue(HKEY root, std::string key, std::string name, const std::string& text);
    PlantedValue(HKEY root, std::string key, std::string name, DWORD type, const std::string& bytes);
    PlantedValue(const PlantedValue&) = delete;
    ~PlantedValue();

    void rewrite(const std::string& text) const;
    void remove() const;
    bool stands() const;

private:
    void write(DWORD type, const std::string& bytes) const;

    HKEY root_;
    std::string key_;
    std::string name_;
    std::vector<std::string> made_; ///< The outermost first.
};

} // namespace e2e
