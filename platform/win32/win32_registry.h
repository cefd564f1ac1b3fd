#pragma once

#include "platform/registry.h"

namespace tarvelon {

class Win32Registry : public Registry {
public:
    std::int32_t openKey(Key root, const std::string& path, std::uint32_t access, Key& key) override;
    std::int32_t enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) override;
    std::int32_t enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize, char* data,
                           std::uint32_t& dataSize) override;
    std::int32_t queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                            std::uint32_t& size) override;
    std::int32_t deleteValue(Key key, const std::string& name) override;
    std::int32_t closeKey(Key key) override;
};

} // namespace tarvelon
