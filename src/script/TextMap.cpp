#include "script/TextMap.h"

#include <cstdint>

size_t TextMap::BucketOf(const std::wstring& key) {
    uint32_t hash = 0;
    for (wchar_t unit : key) hash = (hash << 5) + hash + static_cast<uint16_t>(unit);
    return hash % kBuckets;
}

const std::wstring* TextMap::Find(const std::wstring& key) const {
    for (const auto& entry : buckets_[BucketOf(key)])
        if (entry.first == key) return &entry.second;
    return nullptr;
}

void TextMap::Set(const std::wstring& key, const std::wstring& value) {
    Bucket& bucket = buckets_[BucketOf(key)];
    for (auto& entry : bucket) {
        if (entry.first == key) {
            entry.second = value;
            return;
        }
    }
    bucket.emplace_back(key, value);
    ++size_;
}
