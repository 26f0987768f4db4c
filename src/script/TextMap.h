// Text to text, walked as the framework's hash map walks its entries: bucket by bucket, and in a
// bucket the newest entry first. The order matters where one value holds another entry's key.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

class TextMap {
public:
    // Keys compare with case. Null when the key is not there.
    const std::wstring* Find(const std::wstring& key) const;
    void Set(const std::wstring& key, const std::wstring& value);
    bool empty() const { return size_ == 0; }
    size_t size() const { return size_; }

    template <typename Visit>
    void ForEach(Visit visit) const {
        for (const Bucket& bucket : buckets_)
            for (auto entry = bucket.rbegin(); entry != bucket.rend(); ++entry) visit(entry->first, entry->second);
    }

private:
    static constexpr size_t kBuckets = 17;
    using Bucket = std::vector<std::pair<std::wstring, std::wstring>>;  // oldest first

    static size_t BucketOf(const std::wstring& key);

    std::array<Bucket, kBuckets> buckets_;
    size_t size_ = 0;
};
