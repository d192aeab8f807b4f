// Values that are costly to make, kept as long as there is room.
#pragma once

#include <cstring>
#include <list>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace render {

// What tells one cached value from another: the bytes of everything that it was made from.
class CacheKey {
public:
    CacheKey() { bytes_.reserve(kUsual); }

    template <typename Plain>
    CacheKey &add(const Plain &value) {
        static_assert(std::has_unique_object_representations_v<Plain> || std::is_floating_point_v<Plain>);
        bytes_.append(reinterpret_cast<const char *>(&value), sizeof value);
        return *this;
    }
    CacheKey &addText(std::string_view text) {
        add(text.size());
        bytes_.append(text);
        return *this;
    }
    const std::string &bytes() const { return bytes_; }

private:
    static constexpr size_t kUsual = 96; // bytes; a longer key grows
    std::string bytes_;
};

// Drops what has not been asked for the longest once the costs add up to more than `room`.
template <typename Value>
class Cache {
public:
    explicit Cache(size_t room) : room_(room) {}

    // The value for `key`, made with `make` when it is not there; `cost` tells how much room it takes. The
    // reference is good until the next call.
    template <typename Make, typename Cost>
    const Value &get(const CacheKey &key, const Make &make, const Cost &cost) {
        auto found = places_.find(key.bytes());
        if (found != places_.end()) {
            entries_.splice(entries_.begin(), entries_, found->second);
            return found->second->value;
        }
        entries_.push_front({key.bytes(), make(), 0});
        Entry &entry = entries_.front();
        entry.cost = cost(std::as_const(entry.value));
        places_.emplace(entry.key, entries_.begin());
        used_ += entry.cost;
        shrink();
        return entry.value;
    }

    size_t size() const { return entries_.size(); }

private:
    struct Entry {
        std::string key;
        Value value;
        size_t cost;
    };

    void shrink() {
        while (used_ > room_ && entries_.size() > 1) {
            used_ -= entries_.back().cost;
            places_.erase(entries_.back().key);
            entries_.pop_back();
        }
    }

    size_t room_, used_ = 0;
    std::list<Entry> entries_; // what was asked for last comes first
    std::unordered_map<std::string, typename std::list<Entry>::iterator> places_;
};

} // namespace render
