#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <vector>

namespace app {

struct App;

// What has changed under the rest of the house.
enum class Change {
    Columns,       // one was added, renamed, retyped or removed
    Objects,       // some of the layout page may have gone
    PageEmptied,   // all of them have
    Values,        // all records were calculated anew
    CurrentRecord, // another record is the current one, or what it holds was changed behind the page
    Page,          // the layout page was set up for browsing, and shows nothing yet
    Preview,       // what the preview is to show was chosen
    Modified,      // the document is no longer as it is stored, or it is again
    Unsaved,       // a text was typed, or records were replaced, that nothing else tells of
    Begun,         // what the document holds has nothing to do with what it held before
    Opened,        // another file is the open one, or none
    Stored,        // the open file holds the document as it is
    Writing,       // the open file is about to be written by ourselves,
    Written,       // and it was
};

// Tells a change to whoever follows it, so that who makes it need not know them. The followers are told in
// the order in which they came; see shell/program.cpp for all of them.
class Changes {
public:
    using Follower = std::function<void(App&)>;

    void follow(std::initializer_list<Change> changes, const Follower& follower) {
        for (const Change change : changes) followers_[static_cast<std::size_t>(change)].push_back(follower);
    }
    void announce(App& app, Change change) const {
        for (const Follower& follower : followers_[static_cast<std::size_t>(change)]) follower(app);
    }

private:
    std::array<std::vector<Follower>, static_cast<std::size_t>(Change::Written) + 1> followers_;
};

} // namespace app
