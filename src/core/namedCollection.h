#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace core {

// An ordered collection of texts, each with an optional key. Keys are unique without regard to case.
class NamedCollection {
public:
    struct Entry {
        std::string key; // empty: none
        std::string item;
        bool operator==(const Entry&) const = default;
    };

    // Raises keyInUse for a key that is there already.
    void add(std::string_view item, std::string_view key = {});
    void removeAt(std::size_t position);    // from 0
    bool removeItem(std::string_view item); // the first exact match
    void clear();

    std::size_t count() const { return entries_.size(); }
    bool empty() const { return entries_.empty(); }
    const std::string& operator[](std::size_t position) const { return entries_[position].item; } // from 0
    const Entry* find(std::string_view key) const;
    bool contains(std::string_view item) const; // exact
    std::vector<std::string> items() const;

    bool operator==(const NamedCollection& other) const { return entries_ == other.entries_; }

    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

private:
    std::vector<Entry> entries_;
    std::unordered_set<std::string> upperKeys_;
};

} // namespace core
