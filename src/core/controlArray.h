#pragma once

#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace core {

// A family of layout objects. Element 0 is the template that every new element is a copy of; it is
// never shown and never saved. The elements stand in Index order; their addresses stay valid until
// they are unloaded.
template <typename Object>
class ControlArray {
public:
    explicit ControlArray(Object templateObject) : template_(std::move(templateObject)) {}

    const Object& templateElement() const { return template_; }
    Object& templateElement() { return template_; }

    int count() const { return static_cast<int>(objects_.size()); } // without the template
    int upperBound() const { return objects_.empty() ? 0 : objects_.back()->Index; }
    // The first gap in the row of Indexes, or the number behind the last.
    int lowestFreeIndex() const {
        int expected = 1;
        for (const auto& object : objects_) {
            if (object->Index != expected) break;
            ++expected;
        }
        return expected;
    }
    // Raises overflow beyond the highest Index there is, 32,767.
    Object& load(int index) {
        if (index > std::numeric_limits<std::int16_t>::max())
            raise(errors::overflow, core::tr("objects of one kind"));
        const auto spot = position(objects_, index);
        if (index < 1 || (spot != objects_.end() && (*spot)->Index == index))
            raise(errors::subscriptOutOfRange, core::fill(core::tr("object %1"), {std::to_string(index)}));
        auto object = std::make_unique<Object>(template_);
        object->Index = index;
        return **objects_.insert(spot, std::move(object));
    }
    void unload(int index) {
        const auto spot = position(objects_, index);
        if (spot != objects_.end() && (*spot)->Index == index) objects_.erase(spot);
    }
    void unloadAll() { objects_.clear(); }
    Object* find(int index) { return findIn(objects_, index); }
    const Object* find(int index) const { return findIn(objects_, index); }
    // Raises subscriptOutOfRange for an object that is not there.
    Object& operator[](int index) {
        Object* object = find(index);
        if (object == nullptr)
            raise(errors::subscriptOutOfRange, core::fill(core::tr("object %1"), {std::to_string(index)}));
        return *object;
    }

    // Without the template, in Index order.
    template <typename Visitor>
    void forEach(Visitor&& visit) {
        for (auto& object : objects_) visit(*object);
    }
    template <typename Visitor>
    void forEach(Visitor&& visit) const {
        for (const auto& object : objects_) visit(static_cast<const Object&>(*object));
    }

private:
    static auto position(auto& objects, int index) {
        return std::lower_bound(objects.begin(), objects.end(), index,
                                [](const auto& object, int wanted) { return object->Index < wanted; });
    }
    static Object* findIn(auto& objects, int index) {
        const auto spot = position(objects, index);
        return spot != objects.end() && (*spot)->Index == index ? spot->get() : nullptr;
    }

    Object template_;
    std::vector<std::unique_ptr<Object>> objects_;
};

} // namespace core
