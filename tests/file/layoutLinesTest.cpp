#include "file/layoutLines.h"
#include "raised.h"

#include <gtest/gtest.h>

namespace {

// A line as it is read and written again, "skipped", or the error that it ends in, which leaves no object.
std::string lineAgain(std::string_view line) {
    core::LayoutObjects layout;
    bool known = false;
    const int error = raisedBy([&] { known = file::readLayoutLine(line, layout); });
    std::string out;
    file::writeLayoutLines(out, layout, "");
    EXPECT_EQ(out.empty(), !known) << line;
    return error != 0 ? "error " + std::to_string(error) : known ? out : "skipped";
}

TEST(LayoutLines, ComeBackAsTheyWereOrInTheShortestForm) {
    const std::pair<const char*, const char*> cases[] = {
        // nullptr: the same
        {"F|Price|2880|3000|1815|285|True|False|True|MS Sans Serif|8.25|255|", nullptr},
        {"F|A|1|2|3|4|-1|0| true |Arial|10|-2147483640|more|and more|",
         "F|A|1|2|3|4|True|False|True|Arial|10|-2147483640|"},
        {"L|Ask, him|1|2|3|4|True|False|False|Arial|10|8388608|mailto:a@b.org|2|", nullptr},
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
        {"L|A|1|2|3|4|True|False|False|Arial|10|0|x|-1|", "L|A|1|2|3|4|True|False|False|Arial|10|0|x|0|"},
        // A line is written in the template's colour, whatever stands there.
        {"LN|1440|1440|8640|75|255|", "LN|1440|1440|8640|75|16777215|"},
        {"VLN|1|2|3|4", "VLN|1|2|3|4|16777215|"},
        {"B|1320|960|9000|4500|128|3|", nullptr},
        {"P|Cover|1|2|3|4|tip|", "P|Cover|1|2|3|4|"},
        {"C|../x.jpg|1|2|3|4|", nullptr},
        // Numbers in the forms that other programs write.
        {"C|a|1,440| -.5 |1E3|$12.50|", "C|a|1440|-0.5|1000|12.5|"},
        {"C|a|0.1|123456.789|.15|100000|", "C|a|0.1|123456.79|0.15|100000|"},
        {"B|1|2|3|4|5|2.5|", "B|1|2|3|4|5|2|"},
        {"X|unknown|1|2|", "skipped"},
        {"f|A|1|2|3|4|-1|0|1|A|8|0|", "skipped"},
        {"LNX|1|2|3|4|5|", "skipped"},
        {" C|a|1|2|3|4|", "skipped"},
        {"", "skipped"},
        {"F|A|1|2|3|4|True|False|False|Arial|10", "error 9"},
        {"L|A|1|2|3|4|True|False|False|Arial", "error 9"},
        {"VLN", "error 9"},
        {"B|1|2|3|4|5", "error 9"},
        {"P|A|1|2|3", "error 9"},
        {"C", "error 9"},
        {"F|A|1|2|3|4|Yes|False|False|Arial|10|0|", "error 13"},
        {"F|A|1|2|3|4|True|False|False|Arial|ten|0|", "error 13"},
        {"L|A|1|2|3|4|True|False|False|Arial|10|0|link|left|", "error 13"},
        {"LN|1|2|3||5|", "error 13"},
        {"B|1|2|3|4|0|32768|", "error 6"},
        {"B|1|2|3|4|99999999999|1|", "error 6"},
        {"C|a|1E39|2|3|4|", "error 6"}};
    for (const auto& [line, written] : cases)
        EXPECT_EQ(lineAgain(line), written == nullptr ? line : written) << line;
}

TEST(LayoutLines, GoFamilyByFamilyInIndexOrder) {
    core::LayoutObjects layout;
    for (const char* line :
         {"C|c1|1|2|3|4|", "P|p1|1|2|3|4|stamp.gif|", "B|1|2|3|4|5|6|", "VLN|1|2|3|4|5|", "LN|1|2|3|4|5|",
          "L|l1|1|2|3|4|True|False|False|A|8|0||0|", "F|f1|1|2|3|4|True|False|False|A|8|0|", "C|c2|1|2|3|4|"})
        ASSERT_TRUE(file::readLayoutLine(line, layout)) << line;
    layout.clipPic.unload(1);
    ASSERT_TRUE(file::readLayoutLine("C|c3|5|6|70|80|", layout));
    const core::ClipPic& clip = layout.clipPic[3]; // the next number, not the gap
    EXPECT_TRUE(clip.Visible && clip.clipImage.Width == 70 && clip.clipImage.Height == 80);
    EXPECT_EQ(layout.imgHolder[1].ToolTipText, "stamp.gif") << "from behind the separator";
    EXPECT_EQ(layout.imgHolder[1].viewImage.Width + layout.imgHolder[1].viewImage.Height, 7);
    // Each stands behind those of earlier lines, and boxes behind all others.
    EXPECT_GT(layout.imgHolder[1].zOrder, layout.vLine[1].zOrder);
    EXPECT_GT(clip.zOrder, layout.pBox[1].zOrder);
    std::string out;
    file::writeLayoutLines(out, layout, "\n");
    EXPECT_EQ(out, "F|f1|1|2|3|4|True|False|False|A|8|0|\n"
                   "L|l1|1|2|3|4|True|False|False|A|8|0||0|\n"
                   "LN|1|2|3|4|16777215|\nVLN|1|2|3|4|16777215|\nB|1|2|3|4|5|6|\nP|p1|1|2|3|4|\n"
                   "C|c2|1|2|3|4|\nC|c3|5|6|70|80|\n");
}

} // namespace
