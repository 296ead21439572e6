#pragma once

#include <map>
#include <memory>
#include <typeindex>

namespace app {

// What each room keeps of the window, beside the document: a room defines a struct of its own, which nobody
// below it knows of, and asks for it by its type. It is there, as it begins, when it is first asked for.
class RoomStates {
public:
    template <typename State>
    State& of() const {
        std::shared_ptr<void>& state = states_[typeid(State)];
        if (!state) state = std::make_shared<State>();
        return *static_cast<State*>(state.get());
    }

private:
    mutable std::map<std::type_index, std::shared_ptr<void>> states_;
};

} // namespace app
