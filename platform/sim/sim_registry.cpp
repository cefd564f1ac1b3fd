#include "platform/sim/sim_registry.h"

#include "core/text.h"
#include "platform/sim/faults.h"
#include "platform/sim/sim_codepage.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tarvelon {

namespace {

constexpr std::int32_t success = 0;
constexpr Registry::Key firstKey = 0x100;

std::vector<std::string> namesIn(const std::string& utf8Path) {
    std::vector<std::string> names = split(utf8Path.c_str(), '\\');
    std::erase(names, "");
    return names;
}

bool holdsText(const SimRegistry::Value& value) {
    return value.type == SimRegistry::Text || value.type == SimRegistry::ExpandableText ||
           value.type == SimRegistry::TextList;
}

/// Fills the buffer as both value calls do. A text that was stored without its final zero gets one,
/// uncounted, where there is room.
std::int32_t giveData(const SimRegistry::Value& value, char* data, std::uint32_t& size) {
    const std::uint32_t room = size;
    size = static_cast<std::uint32_t>(value.bytes.size());
    if (size > room) {
        return Registry::moreData;
    }
    std::memcpy(data, value.bytes.data(), size);
    if (holdsText(value) && size > 0 && size < room && value.bytes.back() != '\0') {
        data[size] = '\0';
    }
    return success;
}

} // namespace

struct SimRegistry::Node {
    struct NamedValue {
        std::string name;
        Value value;
    };

    std::string name;
    std::map<std::string, std::unique_ptr<Node>> keys; ///< By upper-cased name.
    std::vector<NamedValue> values;
    std::uint32_t denied = 0;

    auto valueLike(const std::string& asked) {
        return std::ranges::find_if(values, [wanted = utf8Capitals(asked.c_str())](const NamedValue& value) {
            return utf8Capitals(value.name) == wanted;
        });
    }
};

SimRegistry::SimRegistry(Faults& faults, SimCodePage& codePage)
    : faults_(faults)
    , codePage_(codePage) {
    for (const Key root : {currentUser, localMachine}) {
        roots_[root] = std::make_unique<Node>();
    }
    makeKey(localMachine, "Software\\Classes");
}

SimRegistry::~SimRegistry() = default;

SimRegistry::Node& SimRegistry::make(Key root, const std::string& path) {
    if (root == classesRoot) {
        return make(localMachine, "Software\\Classes\\" + path);
    }
    Node* node = roots_.at(root).get();
    for (const std::string& name : namesIn(codePage_.toUtf8(path))) {
        std::unique_ptr<Node>& next = node->keys[utf8Capitals(name)];
        if (!next) {
            next = std::make_unique<Node>();
            next->name = name;
        }
        node = next.get();
    }
    return *node;
}

void SimRegistry::makeKey(Key root, const std::string& path) {
    make(root, path);
}

void SimRegistry::setValue(Key root, const std::string& path, const std::string& name, Value value) {
    Node& node = make(root, path);
    const std::string keptName = codePage_.toUtf8(name);
    if (const auto existing = node.valueLike(keptName); existing != node.values.end()) {
        existing->value = kept(std::move(value));
    } else {
        node.values.push_back({keptName, kept(std::move(value))});
    }
}

void SimRegistry::setText(Key root, const std::string& path, const std::string& name,
                          const std::string& text) {
    setValue(root, path, name, {Text, text + '\0'});
}

std::optional<SimRegistry::Value> SimRegistry::value(Key root, const std::string& path,
                                                     const std::string& name) const {
    if (root == classesRoot) {
        return value(localMachine, "Software\\Classes\\" + path, name);
    }
    Node* const node = below(*roots_.at(root), path);
    if (!node) {
        return std::nullopt;
    }
    const auto found = node->valueLike(codePage_.toUtf8(name));
    return found == node->values.end() ? std::nullopt : std::optional(shown(found->value));
}

void SimRegistry::deny(Key root, const std::string& path, std::uint32_t rights) {
    make(root, path).denied = rights;
}

SimRegistry::Value SimRegistry::kept(Value value) const {
    if (holdsText(value)) {
        value.bytes = codePage_.toUtf8(value.bytes);
    }
    return value;
}

SimRegistry::Value SimRegistry::shown(Value value) const {
    if (holdsText(value)) {
        value.bytes = codePage_.shown(value.bytes);
    }
    return value;
}

SimRegistry::Node* SimRegistry::below(Node& start, const std::string& path) const {
    Node* node = &start;
    for (const std::string& name : namesIn(codePage_.toUtf8(path))) {
        const auto next = node->keys.find(utf8Capitals(name));
        if (next == node->keys.end()) {
            return nullptr;
        }
        node = next->second.get();
    }
    return node;
}

SimRegistry::Node* SimRegistry::nodeOf(Key key, std::uint32_t rights, std::int32_t& result) const {
    if (key == classesRoot) {
        return below(*roots_.at(localMachine), "Software\\Classes");
    }
    if (const auto root = roots_.find(key); root != roots_.end()) {
        return root->second.get();
    }
    const auto open = open_.find(key);
    if (open == open_.end()) {
        result = invalidHandle;
        return nullptr;
    }
    if ((open->second.rights & rights) != rights) {
        result = accessDenied;
        return nullptr;
    }
    return open->second.node;
}

std::int32_t SimRegistry::openKey(Key root, const std::string& path, std::uint32_t access, Key& key) {
    key = 0;
    std::int32_t result = accessDenied;
    Node* const start = faults_.strikes(Operation::OpenKey) ? nullptr : nodeOf(root, 0, result);
    if (!start) {
        return result;
    }
    Node* const node = below(*start, path);
    if (!node) {
        return fileNotFound;
    }
    if ((node->denied & access) != 0) {
        return accessDenied;
    }
    for (key = firstKey; open_.contains(key);) {
        key += 4;
    }
    open_[key] = {node, access};
    return success;
}

std::int32_t SimRegistry::enumKey(Key key, std::uint32_t index, char* name, std::uint32_t size) {
    std::int32_t result = accessDenied;
    const Node* const node =
        faults_.strikes(Operation::EnumKey) ? nullptr : nodeOf(key, enumerateRight, result);
    if (!node) {
        return result;
    }
    if (index >= node->keys.size()) {
        return noMoreItems;
    }
    const std::string found =
        codePage_.shown(std::next(node->keys.begin(), static_cast<std::ptrdiff_t>(index))->second->name);
    if (found.size() >= size) {
        return moreData;
    }
    std::memcpy(name, found.c_str(), found.size() + 1);
    return success;
}

std::int32_t SimRegistry::enumValue(Key key, std::uint32_t index, char* name, std::uint32_t& nameSize,
                                    char* data, std::uint32_t& dataSize) {
    std::int32_t result = accessDenied;
    const Node* const node =
        faults_.strikes(Operation::EnumValue) ? nullptr : nodeOf(key, queryRight, result);
    if (!node) {
        return result;
    }
    if (index >= node->values.size()) {
        return noMoreItems;
    }
    const Node::NamedValue& found = node->values[index];
    const std::string foundName = codePage_.shown(found.name);
    result = giveData(shown(found.value), data, dataSize);
    if (result != success || foundName.size() >= nameSize) {
        return moreData;
    }
    std::memcpy(name, foundName.c_str(), foundName.size() + 1);
    nameSize = static_cast<std::uint32_t>(foundName.size());
    return success;
}

std::int32_t SimRegistry::queryValue(Key key, const std::string& name, std::uint32_t& type, char* data,
                                     std::uint32_t& size) {
    std::int32_t result = accessDenied;
    Node* const node = faults_.strikes(Operation::QueryValue) ? nullptr : nodeOf(key, queryRight, result);
    if (!node) {
        return result;
    }
    const auto found = node->valueLike(codePage_.toUtf8(name));
    if (found == node->values.end()) {
        return fileNotFound;
    }
    type = found->value.type;
    return giveData(shown(found->value), data, size);
}

std::int32_t SimRegistry::deleteValue(Key key, const std::string& name) {
    std::int32_t result = accessDenied;
    Node* const node = faults_.strikes(Operation::DeleteValue) ? nullptr : nodeOf(key, setRight, result);
    if (!node) {
        return result;
    }
    const auto found = node->valueLike(codePage_.toUtf8(name));
    if (found == node->values.end()) {
        return fileNotFound;
    }
    node->values.erase(found);
    return success;
}

std::int32_t SimRegistry::closeKey(Key key) {
    if (faults_.strikes(Operation::CloseKey)) {
        return accessDenied;
    }
    const bool isRoot = key == classesRoot || roots_.contains(key);
    return isRoot || open_.erase(key) == 1 ? success : invalidHandle;
}

} // namespace tarvelon
