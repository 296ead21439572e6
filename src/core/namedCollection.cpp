#include "core/namedCollection.h"

#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>

namespace core {

void NamedCollection::add(std::string_view item, std::string_view key) {
    if (!key.empty() && !upperKeys_.insert(upper(key)).second) raise(errors::keyInUse, std::string(key));
    entries_.push_back({std::string(key), std::string(item)});
}

void NamedCollection::removeAt(std::size_t position) {
    if (position >= entries_.size()) raise(errors::subscriptOutOfRange);
    const auto entry = entries_.begin() + static_cast<std::ptrdiff_t>(position);
    if (!entry->key.empty()) upperKeys_.erase(upper(entry->key));
    entries_.erase(entry);
}

bool NamedCollection::removeItem(std::string_view item) {
    const auto entry = std::ranges::find(entries_, item, &Entry::item);
    if (entry == entries_.end()) return false;
    removeAt(static_cast<std::size_t>(entry - entries_.begin()));
    return true;
}

void NamedCollection::clear() {
    entries_.clear();
    upperKeys_.clear();
}

const NamedCollection::Entry* NamedCollection::find(std::string_view key) const {
    const auto entry =
        std::ranges::find_if(entries_, [&](const Entry& e) { return equalsNoCase(e.key, key); });
    return entry == entries_.end() || key.empty() ? nullptr : &*entry;
}

bool NamedCollection::contains(std::string_view item) const {
    return std::ranges::find(entries_, item, &Entry::item) != entries_.end();
}

std::vector<std::string> NamedCollection::items() const {
    std::vector<std::string> texts;
    for (const Entry& entry : entries_) texts.push_back(entry.item);
    return texts;
}

} // namespace core
