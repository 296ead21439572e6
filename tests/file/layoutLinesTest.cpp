#include "file/layoutLines.h"
#include "core/text.h"
#include "raised.h"
#include "table.h"

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
    const std::string place = "|1|2|3|4|", font = place + "True|False|False|Arial|10|"; // @ and #
    for (const auto& c : table(
             "F|Price|2880|3000|1815|285|True|False|True|MS Sans Serif|8.25|255|; "
             "F|A@-1|0| true |Arial|10|-2147483640|more|and more| -> "
             "F|A@True|False|True|Arial|10|-2147483640|; L|Ask, him#8388608|http://a.org|2|; "
             // A separator in the text does not tear it.
             "L|Tel | Fax#0|x|1|; L|1|2|3|4#0||1|; C|a|b|c.jpg@; "
             // Lines of older files: no link, left alignment, whatever stands there.
             "L|Old#0| -> L|Old#0||0|; L|Old#0|x|1 -> L|Old#0||0|; L|Long#0|x|1|2| -> L|Long#0||0|; "
             // No alignment that there is.
             "L|A#0|x|3| -> L|A#0|x|0|; L|A#0|x|-1| -> L|A#0|x|0|; "
             // A line is written in the template's colour, and a picture without its hint.
             "LN|1440|1440|8640|75|255| -> LN|1440|1440|8640|75|16777215|; VLN|1|2|3|4 -> VLN@16777215|; "
             "B|1320|960|9000|4500|128|3|; P|Cover@tip| -> P|Cover@; B@5|2.5| -> B@5|2|; "
             // Numbers in the forms that other programs write.
             "C|a|1,440| -.5 |1E3|$12.50| -> C|a|1440|-0.5|1000|12.5|; "
             "X|unknown|1|2| -> skipped; f|A@-1|0|1|A|8|0| -> skipped; LNX@5| -> skipped;  C|a@ -> skipped; "
             "F|A@True|False|False|Arial|10 -> error 9; L|A@True|False|False|Arial -> error 9; VLN -> "
             "error 9; B@5 -> error 9; P|A|1|2|3 -> error 9; C -> error 9; F|A@Yes|False|False|Arial|10|0| "
             "-> error 13; L|A#0|link|left| -> error 13; B@0|32768| -> error 6; B@9e9|1| -> error 6; "
             "C|a|1E39|2|3|4| -> error 6")) {
        const auto whole = [&](const std::string& line) {
            return core::replaceAll(core::replaceAll(line, "#", font), "@", place);
        };
        EXPECT_EQ(lineAgain(whole(c[0])), whole(c[c[1].empty() ? 0 : 1])) << c[0];
    }
    EXPECT_EQ(lineAgain(""), "skipped");
}

TEST(LayoutLines, GoFamilyByFamilyInIndexOrder) {
    core::LayoutObjects layout;
    const auto read = [&](const char* lines) {
        for (const std::string_view line : core::split(lines, ';'))
            EXPECT_TRUE(file::readLayoutLine(line, layout)) << line;
    };
    read("C|c1|1|2|3|4|;P|p1|1|2|3|4|stamp.gif;B|1|2|3|4|5|6|;VLN|1|2|3|4|5|;LN|1|2|3|4|5|;"
         "L|l1|1|2|3|4|True|False|False|A|8|0||0|;F|f1|1|2|3|4|True|False|False|A|8|0|;C|c2|1|2|3|4|");
    layout.clipPic.unload(1);
    read("C|c3|5|6|70|80|;P|p2|1|2|3|4");
    const core::ClipPic& clip = layout.clipPic[3]; // the next number, not the gap
    EXPECT_TRUE(clip.Visible && clip.clipImage.Width == 70 && clip.clipImage.Height == 80);
    const core::ImgHolder& picture = layout.imgHolder[1];
    EXPECT_EQ(picture.ToolTipText, "stamp.gif") << "from behind the separator";
    EXPECT_EQ(picture.viewImage.Width + picture.viewImage.Height, 7);
    // Each stands behind those of earlier lines, and boxes behind all others.
    EXPECT_TRUE(picture.zOrder > layout.vLine[1].zOrder && clip.zOrder > layout.pBox[1].zOrder);
    std::string out;
    file::writeLayoutLines(out, layout, "\n");
    EXPECT_EQ(out, "F|f1|1|2|3|4|True|False|False|A|8|0|\nL|l1|1|2|3|4|True|False|False|A|8|0||0|\n"
                   "LN|1|2|3|4|16777215|\nVLN|1|2|3|4|16777215|\nB|1|2|3|4|5|6|\n"
                   "P|p1|1|2|3|4|\nP|p2|1|2|3|4|\nC|c2|1|2|3|4|\nC|c3|5|6|70|80|\n");
}

} // namespace
