#include "platform/fake/FakeRegistry.h"

#include <algorithm>
#include <cstring>

#include "platform/fake/CaseFold.h"

namespace platform::fake {

namespace {

constexpr size_t kMaxKeyNameChars = 255;

struct Value {
    std::wstring name;
    uint32_t type = kRegNone;
    std::vector<uint8_t> bytes;
};

bool IsStringType(uint32_t type) {
    return type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
}

uint16_t UnitAt(const uint8_t* bytes, size_t index) {
    uint16_t unit;
    std::memcpy(&unit, bytes + index * 2, 2);
    return unit;
}

// The real API counts a terminator the caller left out when it sits right behind the data.
uint32_t StoredSize(uint32_t type, const void* data, uint32_t size) {
    if (!data || size < 2 || !IsStringType(type)) return size;
    auto* bytes = static_cast<const uint8_t*>(data);
    size_t units = size / 2;
    if (UnitAt(bytes, units - 1) != 0 && UnitAt(bytes, units) == 0) return static_cast<uint32_t>(units * 2 + 2);
    return size;
}

// Splits a key path at "\"; empty names (doubled or trailing separators) are skipped.
long SplitPath(const std::wstring& path, std::vector<std::wstring>& names) {
    if (!path.empty() && path[0] == L'\\') return kRegistryBadPathname;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find(L'\\', start);
        if (end == std::wstring::npos) end = path.size();
        if (end > start) {
            if (end - start > kMaxKeyNameChars) return kRegistryInvalidParameter;
            names.push_back(path.substr(start, end - start));
        }
        start = end + 1;
    }
    return kRegistryOk;
}

// A string read with room to spare gets a terminator behind the data, as the system writes one.
long CopyOut(uint32_t type, const std::vector<uint8_t>& bytes, void* data, uint32_t* size) {
    uint32_t stored = static_cast<uint32_t>(bytes.size());
    if (!data) {
        if (size) *size = stored;
        return kRegistryOk;
    }
    if (!size) return kRegistryInvalidParameter;
    if (*size < stored) {
        *size = stored;
        return kRegistryMoreData;
    }
    if (stored) std::memcpy(data, bytes.data(), stored);
    if (IsStringType(type) && *size >= stored + 2) std::memset(static_cast<uint8_t*>(data) + stored, 0, 2);
    *size = stored;
    return kRegistryOk;
}

}  // namespace

struct FakeRegistry::Node {
    std::wstring name;
    std::vector<Value> values;                   // in the order of creation
    std::vector<std::shared_ptr<Node>> subkeys;  // sorted by upper-cased name
    Node* parent = nullptr;
    bool deleted = false;

    Value* FindValue(const std::wstring& valueName) {
        for (Value& value : values)
            if (EqualNoCase(value.name, valueName)) return &value;
        return nullptr;
    }

    std::vector<std::shared_ptr<Node>>::iterator LowerBound(const std::wstring& keyName) {
        return std::lower_bound(subkeys.begin(), subkeys.end(), keyName,
                                [](const std::shared_ptr<Node>& node, const std::wstring& wanted) {
                                    return CompareNoCase(node->name, wanted) < 0;
                                });
    }

    std::shared_ptr<Node> FindSubkey(const std::wstring& keyName) {
        auto it = LowerBound(keyName);
        return it != subkeys.end() && EqualNoCase((*it)->name, keyName) ? *it : nullptr;
    }
};

class FakeRegistry::Key : public RegistryKey {
public:
    Key(FakeRegistry& registry, std::shared_ptr<Node> node) : registry_(registry), node_(std::move(node)) {}

    long QueryValue(const std::wstring& name, uint32_t* type, void* data, uint32_t* size) override {
        if (node_->deleted) return kRegistryKeyDeleted;
        Value* value = node_->FindValue(name);
        if (!value) return kRegistryNotFound;
        if (data && !size) return kRegistryInvalidParameter;
        if (type) *type = value->type;
        return CopyOut(value->type, value->bytes, data, size);
    }

    long SetValue(const std::wstring& name, uint32_t type, const void* data, uint32_t size) override {
        if (node_->deleted) return kRegistryKeyDeleted;
        if (registry_.refuseWrites_) return kRegistryAccessDenied;
        if (!data && size) return kRegistryInvalidParameter;
        uint32_t stored = StoredSize(type, data, size);
        Value* value = node_->FindValue(name);
        if (!value) {
            node_->values.push_back(Value{name, type, {}});
            value = &node_->values.back();
        }
        value->type = type;
        auto* bytes = static_cast<const uint8_t*>(data);
        value->bytes.assign(bytes, bytes + (bytes ? stored : 0));
        return kRegistryOk;
    }

    long DeleteValue(const std::wstring& name) override {
        if (node_->deleted) return kRegistryKeyDeleted;
        if (registry_.refuseWrites_) return kRegistryAccessDenied;
        auto& values = node_->values;
        auto it = std::find_if(values.begin(), values.end(),
                               [&](const Value& value) { return EqualNoCase(value.name, name); });
        if (it == values.end()) return kRegistryNotFound;
        values.erase(it);
        return kRegistryOk;
    }

    long EnumValue(uint32_t index, uint32_t nameChars, std::wstring& name, uint32_t* type, void* data,
                   uint32_t* size) override {
        if (node_->deleted) return kRegistryKeyDeleted;
        if (index >= node_->values.size()) return kRegistryNoMoreItems;
        const Value& value = node_->values[index];
        if (value.name.size() + 1 > nameChars) return kRegistryMoreData;
        if (data && !size) return kRegistryInvalidParameter;
        name = value.name;
        if (type) *type = value.type;
        return CopyOut(value.type, value.bytes, data, size);
    }

    long EnumKeyName(uint32_t index, std::wstring& name) override {
        if (node_->deleted) return kRegistryKeyDeleted;
        if (index >= node_->subkeys.size()) return kRegistryNoMoreItems;
        name = node_->subkeys[index]->name;
        return kRegistryOk;
    }

private:
    FakeRegistry& registry_;
    std::shared_ptr<Node> node_;
};

FakeRegistry::FakeRegistry() : root_(std::make_shared<Node>()) {}

FakeRegistry::~FakeRegistry() = default;

long FakeRegistry::Find(const std::wstring& path, bool create, std::shared_ptr<Node>& node) {
    std::vector<std::wstring> names;
    if (long error = SplitPath(path, names)) return error;
    node = root_;
    for (const std::wstring& name : names) {
        std::shared_ptr<Node> next = node->FindSubkey(name);
        if (!next) {
            if (!create) return kRegistryNotFound;
            if (refuseWrites_) return kRegistryAccessDenied;
            next = std::make_shared<Node>();
            next->name = name;
            next->parent = node.get();
            node->subkeys.insert(node->LowerBound(name), next);
        }
        node = next;
    }
    return kRegistryOk;
}

long FakeRegistry::CreateKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) {
    std::shared_ptr<Node> node;
    if (long error = Find(path, true, node)) return error;
    key = std::make_unique<Key>(*this, node);
    return kRegistryOk;
}

long FakeRegistry::OpenKey(const std::wstring& path, std::unique_ptr<RegistryKey>& key) {
    std::shared_ptr<Node> node;
    if (long error = Find(path, false, node)) return error;
    key = std::make_unique<Key>(*this, node);
    return kRegistryOk;
}

long FakeRegistry::DeleteKey(const std::wstring& path) {
    std::shared_ptr<Node> node;
    if (long error = Find(path, false, node)) return error;
    if (refuseWrites_ || node == root_ || !node->subkeys.empty()) return kRegistryAccessDenied;
    auto& siblings = node->parent->subkeys;
    siblings.erase(std::find(siblings.begin(), siblings.end(), node));
    node->deleted = true;
    node->parent = nullptr;
    return kRegistryOk;
}

}  // namespace platform::fake
