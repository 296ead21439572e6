#include "databases.h"
#include "entry/entryFrm.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using entry::entryFrm;

// Backspace in an empty box changes nothing; what comes into the boxes then ends its effect on the slashes.
TEST(EntryFrmBackspace, NewTextsEndIt) {
    struct Case {
        const char* name;
        std::function<void(entryFrm&)> act;
    };
    const Case cases[] = {{"another record", [](entryFrm& form) { form.Toolbar1_ButtonClick("Next"); }},
                          {"New", [](entryFrm& form) { form.Toolbar1_ButtonClick("New"); }},
                          {"Add", [](entryFrm& form) { form.Toolbar1_ButtonClick("Add"); }}};
    for (const Case& each : cases) {
        Program program;
        DataFile file;
        file.names = "Made|Name|";
        file.types = "1|3|";
        file.widths = "1440|1440|";
        file.spots = "1|2|3|";
        file.rows = "|a|\r\n|b|\r\n------|------|\r\n";
        program.open(program.make("dates.fwk", file.text()));
        entryFrm form(program.app);
        form.FieldBox_KeyDown(0, entry::keyBack);
        each.act(form);
        form.FieldBox_Change(0, "05");
        EXPECT_EQ(form.FieldBox[0].Text, "05/") << each.name;
    }
}

} // namespace
