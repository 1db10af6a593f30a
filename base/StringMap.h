#pragma once
// String-keyed hash map whose walking order is part of the output format.
//
// Several sections of the QFX file and the log list the entries of a map in the map's own
// order, so that order is fixed here once: buckets in ascending order, each chain from its
// head, a new entry going to the head of its chain. A key's bucket is h mod the bucket count,
// with h = h * 33 + c over the key's characters taken as signed bytes, in 32-bit unsigned
// arithmetic from 0. Buckets never grow. A side index keeps look-ups constant-time however
// long the chains become, without changing that order.
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace base {

constexpr unsigned kDefaultBuckets = 17;
constexpr unsigned kComponentBuckets = 10;

inline unsigned StringMapHash(const std::string& key, unsigned buckets) {
    uint32_t h = 0;
    for (char c : key)
        h = h * 33u + static_cast<uint32_t>(static_cast<int32_t>(static_cast<signed char>(c)));
    return buckets ? h % buckets : 0;
}

template <class T>
class StringMap {
  public:
    StringMap() : StringMap(kDefaultBuckets) {}
    // The chains are made with the first entry: a board has a map or two in every part, most
    // of them never filled.
    explicit StringMap(unsigned buckets) : buckets_(buckets ? buckets : 1) {}

    StringMap(const StringMap& other) : StringMap(other.buckets_) { CopyFrom(other); }
    StringMap& operator=(const StringMap& other) {
        if (this != &other) {
            buckets_ = other.buckets_;
            index_.clear();
            chains_.clear();
            CopyFrom(other);
        }
        return *this;
    }
    StringMap(StringMap&&) noexcept = default;
    StringMap& operator=(StringMap&&) noexcept = default;

    unsigned BucketCount() const { return buckets_; }
    size_t Size() const { return index_.size(); }
    bool Empty() const { return index_.empty(); }

    T* Find(const std::string& key) {
        auto it = index_.find(key);
        return it == index_.end() ? nullptr : &it->second->value;
    }
    const T* Find(const std::string& key) const {
        auto it = index_.find(key);
        return it == index_.end() ? nullptr : &it->second->value;
    }
    bool Contains(const std::string& key) const { return index_.count(key) != 0; }

    // Sets the value of a key; a new key goes to the head of its chain.
    T& Set(const std::string& key, T value) {
        if (T* found = Find(key)) {
            *found = std::move(value);
            return *found;
        }
        if (chains_.empty()) chains_.resize(buckets_);
        auto entry = std::make_unique<Entry>(Entry{key, std::move(value)});
        Entry* raw = entry.get();
        chains_[StringMapHash(key, buckets_)].push_back(std::move(entry));
        index_.emplace(key, raw);
        return raw->value;
    }
    T& operator[](const std::string& key) {
        if (T* found = Find(key)) return *found;
        return Set(key, T{});
    }
    bool Remove(const std::string& key) {
        auto it = index_.find(key);
        if (it == index_.end()) return false;
        auto& chain = chains_[StringMapHash(key, buckets_)];
        for (size_t i = 0; i < chain.size(); ++i) {
            if (chain[i].get() == it->second) {
                chain.erase(chain.begin() + static_cast<std::ptrdiff_t>(i));
                break;
            }
        }
        index_.erase(it);
        return true;
    }
    void Clear() {
        index_.clear();
        for (auto& chain : chains_) chain.clear();
    }

    // Calls f(key, value) in the map's walking order.
    template <class F>
    void ForEach(F&& f) {
        for (auto& chain : chains_)
            for (auto it = chain.rbegin(); it != chain.rend(); ++it) f((*it)->key, (*it)->value);
    }
    template <class F>
    void ForEach(F&& f) const {
        for (const auto& chain : chains_)
            for (auto it = chain.rbegin(); it != chain.rend(); ++it)
                f((*it)->key, static_cast<const T&>((*it)->value));
    }
    std::vector<std::string> Keys() const {
        std::vector<std::string> keys;
        keys.reserve(Size());
        ForEach([&](const std::string& k, const T&) { keys.push_back(k); });
        return keys;
    }

  private:
    struct Entry {
        std::string key;
        T value;
    };
    void CopyFrom(const StringMap& other) {
        // Insert oldest first so every chain keeps its order.
        for (const auto& chain : other.chains_)
            for (const auto& e : chain) Set(e->key, e->value);
    }

    unsigned buckets_;
    // Each chain is stored oldest first; walking it backwards starts at the head. Empty until
    // the first entry comes.
    std::vector<std::vector<std::unique_ptr<Entry>>> chains_;
    std::unordered_map<std::string, Entry*> index_;
};

}  // namespace base
