#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// The system registry, call by call. Every call gives the system's result code, 0 for success.
class Registry {
public:
    using Key = std::uintptr_t;

    static constexpr Key classesRoot = 0x80000000u;
    static constexpr Key currentUser = 0x80000001u;
    static constexpr Key localMachine = 0x80000002u;

    /// The system's codes that a caller may want to tell apart.
    static constexpr std::int32_t fileNotFound = 2;
    static constexpr std::int32_t accessDenied = 5;
    static constexpr std::int32_t invalidHandle = 6;
    static constexpr std::int32_t moreData = 234;
    static constexpr std::int32_t noMoreItems = 259;

    virtual ~Registry() = default;

    /// `RegOpenKeyExA` with options 0. `key` is 0 on failure. The number of a closed key is given out again,
    /// to whoever in the process opens something next.
    virtual std::int32_t openKey(Key root, const std::string& path, std::uint32_t access, Key& key) = 0;

    /// `RegEnumKeyA`: the sub-key's name with a zero, into `size` bytes.
    virtual std::int32_t enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) = 0;

    /// `RegEnumValueA`: the sizes hold the buffers' bytes before, and what was written after (the name's
    /// without its zero). `moreData` when either buffer is too small.
    virtual std::int32_t enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize,
                                   char* data, std::uint32_t& dataSize) = 0;

    /// `RegQueryValueExA`: `size` holds the buffer's bytes before and the value's after. `moreData` when the
    /// buffer is too small. An empty name is the key's default value.
    virtual std::int32_t queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                                    std::uint32_t& size) = 0;

    /// `RegDeleteValueA`.
    virtual std::int32_t deleteValue(Key key, const std::string& name) = 0;

    /// `RegCloseKey`.
    virtual std::int32_t closeKey(Key key) = 0;
};

} // namespace tarvelon
