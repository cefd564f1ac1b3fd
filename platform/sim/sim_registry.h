#pragma once

#include "platform/registry.h"

#include <map>
#include <memory>
#include <optional>

namespace tarvelon {

class Faults;
class SimCodePage;

/// A registry in memory. Names and texts are kept in UTF-8 and come in the code page. Keys and values are
/// found without regard to case, and keep the spelling they were made with. Sub-keys are listed by name,
/// values in the order they were made in. `classesRoot` is the local machine's "Software\Classes". A key that
/// is opened gets the lowest free number, so that one closed before answers to its old number. A call that is
/// told to fail denies access.
class SimRegistry : public Registry {
public:
    enum Type : std::uint32_t {
        None = 0,
        Text = 1,
        ExpandableText = 2,
        Binary = 3,
        Number = 4,
        TextList = 7
    };

    struct Value {
        std::uint32_t type = None;
        std::string bytes;

        bool operator==(const Value&) const = default;
    };

    static constexpr std::uint32_t queryRight = 0x1;
    static constexpr std::uint32_t setRight = 0x2;
    static constexpr std::uint32_t enumerateRight = 0x8;
    static constexpr std::uint32_t allRights = 0xf003f;

    SimRegistry(Faults& faults, SimCodePage& codePage);
    ~SimRegistry() override;

    /// For tests, past all rights and faults. Keys on the way are made.
    void makeKey(Key root, const std::string& path);
    void setValue(Key root, const std::string& path, const std::string& name, Value value);
    /// A value of type `Text`, with its final zero.
    void setText(Key root, const std::string& path, const std::string& name, const std::string& text);
    /// Empty when the key or the value is not there.
    std::optional<Value> value(Key root, const std::string& path, const std::string& name) const;
    /// The key, which is made if need be, no longer opens for whoever asks for any of these rights.
    void deny(Key root, const std::string& path, std::uint32_t rights = allRights);

    /// Keys that are open now.
    std::size_t openKeys() const { return open_.size(); }

    std::int32_t openKey(Key root, const std::string& path, std::uint32_t access, Key& key) override;
    std::int32_t enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) override;
    std::int32_t enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize, char* data,
                           std::uint32_t& dataSize) override;
    std::int32_t queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                            std::uint32_t& size) override;
    std::int32_t deleteValue(Key key, const std::string& name) override;
    std::int32_t closeKey(Key key) override;

private:
    struct Node;
    struct OpenKey {
        Node* node;
        std::uint32_t rights;
    };

    Value kept(Value value) const;
    Value shown(Value value) const;
    Node& make(Key root, const std::string& path);
    /// Null when there is no such key.
    Node* below(Node& start, const std::string& path) const;
    /// The node behind a root or an open key that has these rights; null with `result` telling why not.
    Node* nodeOf(Key key, std::uint32_t rights, std::int32_t& result) const;

    Faults& faults_;
    SimCodePage& codePage_;
    std::map<Key, std::unique_ptr<Node>> roots_;
    std::map<Key, OpenKey> open_;
};

} // namespace tarvelon
