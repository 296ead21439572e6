#include "core/namedCollection.h"
#include "core/runTimeError.h"
#include "raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>

namespace {

using Entries = std::vector<core::NamedCollection::Entry>;

// Whatever is added and taken out: a list that is searched from end to end knows the same, and a key that has
// gone is free again, in any case.
TEST(NamedCollection, KnowsWhatAPlainListKnows) {
    std::mt19937 random(7);
    const std::vector<std::string> keys = {"", "", "a", "A", "b", "Bee", "bEE", "c"};
    core::NamedCollection collection;
    Entries plain;
    const auto isSame = [](const std::string& a, const std::string& b) {
        return std::ranges::equal(a, b, [](char x, char y) { return std::tolower(x) == std::tolower(y); });
    };
    for (int i = 0; i < 3'000; ++i) {
        const std::string key = keys[random() % keys.size()], item = std::to_string(random() % 5);
        switch (random() % 4) {
        case 0:
        case 1: {
            const bool isThere = !key.empty() && std::ranges::any_of(plain, [&](const auto& each) {
                return isSame(each.key, key);
            });
            EXPECT_EQ(raisedBy([&] { collection.add(item, key); }), isThere ? core::errors::keyInUse : 0);
            if (!isThere) plain.push_back({key, item});
            break;
        }
        case 2: {
            const std::size_t place = random() % (plain.size() + 1);
            const bool isThere = place < plain.size();
            EXPECT_EQ(raisedBy([&] { collection.removeAt(place); }),
                      isThere ? 0 : core::errors::subscriptOutOfRange);
            if (isThere) plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
            break;
        }
        default: {
            const auto found = std::ranges::find(plain, item, &core::NamedCollection::Entry::item);
            EXPECT_EQ(collection.removeItem(item), found != plain.end());
            if (found != plain.end()) plain.erase(found);
        }
        }
        ASSERT_TRUE(std::ranges::equal(collection, plain)) << "after step " << i;
        ASSERT_EQ(collection.contains(item),
                  std::ranges::find(plain, item, &core::NamedCollection::Entry::item) != plain.end());
        const bool isKey = !key.empty() && std::ranges::any_of(plain, [&](const auto& each) {
            return isSame(each.key, key);
        });
        ASSERT_EQ(collection.find(key) != nullptr, isKey) << key;
    }
    collection.clear();
    EXPECT_EQ(raisedBy([&] { collection.add("1", "a"); }), 0);
    EXPECT_EQ(collection.count(), 1U);
}

} // namespace
