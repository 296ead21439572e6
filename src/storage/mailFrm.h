#pragma once

#include "app/app.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace storage {

// Hands the database, as it was saved last, to the user's mail program.
class mailFrm {
public:
    static constexpr std::size_t mostCharacters = 500; // of Text3

    explicit mailFrm(app::App& app) : app_(app) {}

    std::string Text1;          // the address
    std::string Text2;          // the subject
    std::string Text3;          // the message
    std::size_t Text3Caret = 0; // in characters, where the view is to put it when it shows another Text3
    bool text1HasFocus = true;  // the view is to put the focus there
    bool unloaded = false;

    // The message has become that text, with the caret behind what was put in. What is too much of it is
    // taken out again.
    void Text3_Change(std::string_view text, std::size_t caret);
    // The dialog stays open, so that what was typed is still there when the mail program is not.
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    app::App& app_;
};

} // namespace storage
