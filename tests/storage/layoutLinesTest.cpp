#include "file/layoutLines.h"
#include "raised.h"

#include <gtest/gtest.h>

namespace {

namespace errors = core::errors;

// A line as it is read and written again.
std::string again(std::string_view line) {
    core::LayoutObjects layout;
    if (!file::readLayoutLine(line, layout)) return "skipped";
    std::string out;
    file::writeLayoutLines(out, layout, "");
    return out;
}

TEST(LayoutLines, comeBackAsTheyWereOrInTheShortestForm) {
    const std::pair<const char*, const char*> cases[] = {
        // nullptr: the same
        {"F|Price|2880|3000|1815|285|True|False|True|MS Sans Serif|8.25|255|", nullptr},
        {"F||0|0|0|0|False|False|False||1|0|", nullptr},
        {"F|A|1|2|3|4|False|True|False|Arial|10|-2147483640|more|and more|",
         "F|A|1|2|3|4|False|True|False|Arial|10|-2147483640|"},
        {"L|Ask, him|1|2|3|4|True|False|False|Arial|10|8388608|mailto:a@b.org|2|", nullptr},
        {"L||1|2|3|4|True|False|False|Arial|10|0||1|", nullptr},
        // A separator in the text does not tear it.
        {"L|Tel | Fax|1|2|3|4|True|False|False|Arial|10|0|x|1|", nullptr},
        {"L|1|2|3|4|1|2|3|4|True|False|False|Arial|10|0||1|", nullptr},
        {"C|a|b|c.jpg|1|2|3|4|", nullptr},
        // Lines of older files: no link, left alignment, whatever stands there.
        {"L|Old|1|2|3|4|True|False|False|Arial|10|0|", "L|Old|1|2|3|4|True|False|False|Arial|10|0||0|"},
        {"L|Old|1|2|3|4|True|False|False|Arial|10|0|x|1", "L|Old|1|2|3|4|True|False|False|Arial|10|0||0|"},
        {"L|Long|1|2|3|4|True|False|False|Arial|10|0|x|1|2|",
         "L|Long|1|2|3|4|True|False|False|Arial|10|0||0|"},
        // No alignment that there is.
        {"L|A|1|2|3|4|True|False|False|Arial|10|0|x|3|", "L|A|1|2|3|4|True|False|False|Arial|10|0|x|0|"},
        // A line is written in the template's colour, whatever stands there.
        {"LN|1440|1440|8640|75|255|", "LN|1440|1440|8640|75|16777215|"},
        {"VLN|7400|1560|75|3300|16777215|", nullptr},
        {"LN|1|2|3|4", "LN|1|2|3|4|16777215|"},
        {"VLN|1|2|3|4|99999999999|", "VLN|1|2|3|4|16777215|"},
        {"B|1320|960|9000|4500|128|3|", nullptr},
        {"P|Cover|7680|1560|2400|3000|", nullptr},
        {"P|Cover|1|2|3|4|tip|", "P|Cover|1|2|3|4|"},
        {"C|logo.gif|9000|990|1080|420|", nullptr},
        {"C|../x.jpg|1|2|3|4|", nullptr},
        // Numbers and booleans in the forms that other programs write.
        {"C|a|1,440| -.5 |1E3|$12.50|", "C|a|1440|-0.5|1000|12.5|"},
        {"C|a|0.1|123456.789|.15|100000|", "C|a|0.1|123456.79|0.15|100000|"},
        {"B|1|2|3|4|5|2.5|", "B|1|2|3|4|5|2|"},
        {"F|A|1|2|3|4|-1|0| true |A|8|0|", "F|A|1|2|3|4|True|False|True|A|8|0|"},
        {"X|unknown|1|2|", "skipped"},
        {"f|A|1|2|3|4|-1|0|1|A|8|0|", "skipped"},
        {"LNX|1|2|3|4|5|", "skipped"},
        {" C|a|1|2|3|4|", "skipped"},
        {"|", "skipped"},
        {"", "skipped"}};
    for (const auto& [line, written] : cases)
        EXPECT_EQ(again(line), written == nullptr ? line : written) << line;
}

TEST(LayoutLines, thatCannotBeUnderstoodRaiseAndLeaveNoObject) {
    const std::pair<const char*, int> cases[] = {
        {"F|A|1|2|3|4|True|False|False|Arial|10", errors::subscriptOutOfRange},
        {"L|A|1|2|3|4|True|False|False|Arial", errors::subscriptOutOfRange},
        {"LN|1|2|3", errors::subscriptOutOfRange},
        {"VLN", errors::subscriptOutOfRange},
        {"B|1|2|3|4|5", errors::subscriptOutOfRange},
        {"P|A|1|2|3", errors::subscriptOutOfRange},
        {"C", errors::subscriptOutOfRange},
        {"F|A|1|2|3|4|Yes|False|False|Arial|10|0|", errors::typeMismatch},
        {"F|A|1|2|3|4|True|False|False|Arial|ten|0|", errors::typeMismatch},
        {"L|A|1|2|3|4|True|False|False|Arial|10|0|link|left|", errors::typeMismatch},
        {"LN|1|2|3||5|", errors::typeMismatch},
        {"B|1|2|3|4|red|1|", errors::typeMismatch},
        {"B|1|2|3|4|0|32768|", errors::overflow},
        {"B|1|2|3|4|99999999999|1|", errors::overflow},
        {"C|a|1E39|2|3|4|", errors::overflow}};
    for (const auto& [line, number] : cases) {
        core::LayoutObjects layout;
        EXPECT_EQ(raisedBy([&, text = line] { file::readLayoutLine(text, layout); }), number) << line;
        std::string out;
        file::writeLayoutLines(out, layout, "");
        EXPECT_EQ(out, "") << line;
    }
}

TEST(LayoutLines, goFamilyByFamilyInIndexOrderAndWithoutTheTemplate) {
    core::LayoutObjects layout;
    for (const char* line : {"C|c1|1|2|3|4|", "P|p1|1|2|3|4|stamp.gif|", "B|1|2|3|4|5|6|", "VLN|1|2|3|4|5|",
                             "LN|1|2|3|4|5|", "L|l1|1|2|3|4|True|False|False|A|8|0||0|",
                             "F|f1|1|2|3|4|True|False|False|A|8|0|", "C|c2|1|2|3|4|", "C|c3|1|2|3|4|"})
        ASSERT_TRUE(file::readLayoutLine(line, layout)) << line;
    layout.clipPic.unload(2);
    ASSERT_TRUE(file::readLayoutLine("C|c4|5|6|70|80|", layout));
    EXPECT_EQ(layout.clipPic.upperBound(), 4) << "the next number, not the gap";
    EXPECT_TRUE(layout.clipPic[4].Visible);
    EXPECT_EQ(layout.clipPic[4].clipImage.Width, 70);
    EXPECT_EQ(layout.clipPic[4].clipImage.Height, 80);
    EXPECT_EQ(layout.imgHolder[1].ToolTipText, "stamp.gif") << "from behind the separator";
    EXPECT_EQ(layout.imgHolder[1].viewImage.Width, 3);
    EXPECT_EQ(layout.imgHolder[1].viewImage.Height, 4);
    std::string out;
    file::writeLayoutLines(out, layout, "\n");
    EXPECT_EQ(out, "F|f1|1|2|3|4|True|False|False|A|8|0|\n"
                   "L|l1|1|2|3|4|True|False|False|A|8|0||0|\n"
                   "LN|1|2|3|4|16777215|\nVLN|1|2|3|4|16777215|\nB|1|2|3|4|5|6|\nP|p1|1|2|3|4|\n"
                   "C|c1|1|2|3|4|\nC|c3|1|2|3|4|\nC|c4|5|6|70|80|\n");
}

} // namespace
